// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/DevicePixels.h>
#include <controls/IconButton.h>
#include <controls/SearchField.h>
#include <controls/TextStyle.h>

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace quorvane {

namespace {

constexpr int sidePadding = 8;
constexpr int lensSize = 16;
constexpr int lensGap = 8;
constexpr int clearSize = 24;
constexpr int clearInset = 4;
constexpr int clearGap = 2;

} // namespace

SearchField::SearchField(const QString& prompt, PasteReader reader, QWidget* parent)
    : TextField(std::move(reader), parent),
      m_clear(
          new IconButton(IconButton::Kind::Section, Symbol::XmarkCircleFill, tr("Clear"), this)) {
    setPlaceholderText(prompt);
    setAccessibleName(tr("Search"));
    setFont(textFont(font(), TextStyle::Callout));
    m_clear->setCursor(Qt::ArrowCursor);
    m_clear->setFocusPolicy(Qt::NoFocus);
    m_clear->hide();
    connect(m_clear, &IconButton::clicked, this, [this] {
        clear();
        setFocus(Qt::OtherFocusReason);
        Q_EMIT textEdited({});
    });
    connect(this, &SearchField::textChanged, m_clear, [this](const QString& text) {
        m_clear->setVisible(!text.isEmpty());
    });
    adoptLayout();
}

QSize SearchField::sizeHint() const {
    return {TextField::sizeHint().width(), fieldHeight};
}

void SearchField::setTrailingRoom(int points) {
    m_trailingRoom = points;
    adoptLayout();
}

bool SearchField::event(QEvent* event) {
    const bool handled = TextField::event(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        adoptLayout();
    return handled;
}

void SearchField::paintSurface(QPainter& painter) {
    const auto theme = Theme::of(surroundingPalette());
    fillRounded(painter, rect(), ChipSurface::cornerRadius, theme.subtleFill);
    if (theme.isHighContrast)
        frameRounded(painter, rect(), ChipSurface::cornerRadius, theme.border, 1);
    const QRect lens(sidePadding, 0, lensSize, height());
    paintSymbol(
        painter,
        Symbol::Magnifyingglass,
        {},
        QStyle::visualRect(layoutDirection(), rect(), lens),
        theme.secondaryText);
}

void SearchField::resizeEvent(QResizeEvent* event) {
    TextField::resizeEvent(event);
    adoptLayout();
}

void SearchField::adoptLayout() {
    constexpr int lensSide = sidePadding + lensSize + lensGap;
    const int clearSide = clearInset + clearSize + m_trailingRoom;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    setPadding(
        mirrored ? clearSide + clearGap : lensSide, mirrored ? lensSide : clearSide + clearGap);
    const QRect clear(width() - clearSide, (height() - clearSize) / 2, clearSize, clearSize);
    m_clear->setGeometry(QStyle::visualRect(layoutDirection(), rect(), clear));
}

} // namespace quorvane
