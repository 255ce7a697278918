// SPDX-License-Identifier: MIT
#include "PopoverHeader.h"

#include <controls/IconButton.h>
#include <controls/KeyCapRow.h>
#include <controls/MenuButton.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <panel/PanelMetrics.h>
#include <recorder/KeyNames.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int headerHeight = 48;
constexpr int appSymbolSize = 20;
constexpr int titleGap = 8;
constexpr int capsGap = 12;
constexpr int buttonSpacing = 4;
constexpr int buttonOverhang = 8; ///< what the last button paints ends with the column

} // namespace

PopoverHeader::PopoverHeader(Callbacks callbacks, const PopoverEffects& effects, QWidget* parent)
    : QWidget(parent),
      m_title(new QLabel(u"Quorvane"_s, this)),
      m_symbolRoom(new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Minimum)),
      m_caps(new KeyCapRow(this)),
      m_presentation(new IconButton(IconButton::Kind::Header, Symbol::Macwindow, {}, this)) {
    setFixedHeight(headerHeight);
    auto* more =
        new MenuButton(Symbol::Ellipsis, tr("More"), std::move(callbacks.menu), effects, this);
    auto* close = new IconButton(IconButton::Kind::Close, Symbol::Xmark, tr("Close"), this);
    connect(
        m_presentation, &IconButton::clicked, this, std::move(callbacks.togglePresentationMode));
    connect(close, &IconButton::clicked, this, std::move(callbacks.close));
    setPresentationMode(PresentationMode::Popover);
    layOut({m_presentation, more, close});
}

void PopoverHeader::layOut(const std::vector<QWidget*>& buttons) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacerItem(m_symbolRoom);
    row->addWidget(m_title);
    row->addSpacing(capsGap);
    row->addWidget(m_caps);
    row->addStretch();
    for (auto* button : buttons) {
        row->addSpacing(buttonSpacing);
        row->addWidget(button);
    }
    row->addSpacing(panelmetrics::sideMargin - buttonOverhang);
    followFont();
}

void PopoverHeader::followFont() {
    const int symbol = besideText(font(), appSymbolSize);
    m_symbolRoom->changeSize(
        panelmetrics::sideMargin + symbol + titleGap, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
    m_title->setFont(textFont(font(), TextStyle::Title));
    layout()->invalidate();
}

void PopoverHeader::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void PopoverHeader::setShortcut(const HotKeyCombo& shortcut, const KeyboardLayout& layout) {
    m_caps->setKeys(capLabels(shortcut, layout), spokenKeys(shortcut, layout));
    m_caps->setToolTip(shortcutText(shortcut, layout));
}

void PopoverHeader::setPresentationMode(PresentationMode mode) {
    if (mode == PresentationMode::Popover)
        m_presentation->setFace(Symbol::Macwindow, tr("Open as panel"));
    else
        m_presentation->setFace(
            Symbol::MenubarArrowUpRectangle, tr("Open as popover at the tray icon"));
}

void PopoverHeader::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    painter.fillRect(0, height() - 1, width(), 1, theme.divider);
    const int size = besideText(font(), appSymbolSize);
    const QRect symbol(panelmetrics::sideMargin, 0, size, height());
    paintSymbol(
        painter,
        Symbol::CalendarBadgeClock,
        {static_cast<double>(size)},
        QStyle::visualRect(layoutDirection(), rect(), symbol),
        theme.accentText);
}

} // namespace quorvane
