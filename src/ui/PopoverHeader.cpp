// SPDX-License-Identifier: MIT
#include <controls/IconButton.h>
#include <controls/KeyCap.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <ui/PanelMetrics.h>
#include <ui/PopoverHeader.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <array>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int headerHeight = 48;
constexpr SymbolStyle appSymbol{20, SymbolStyle::regular};
constexpr int titleGap = 8;
constexpr int capsGap = 12;
constexpr int capSpacing = 4;
constexpr int buttonReach = 8; ///< the last button's ink ends with the column

/// What a screen reader says for a modifier's glyph; any other label says itself.
QString spokenName(const QString& label) {
    static const std::array<std::pair<QString, QString>, 4> names{
        {{u"⌃"_s, PopoverHeader::tr("Control")},
         {u"⌥"_s, PopoverHeader::tr("Alt")},
         {u"⇧"_s, PopoverHeader::tr("Shift")},
         {u"⌘"_s, PopoverHeader::tr("Super")}}};
    for (const auto& [glyph, name] : names) {
        if (glyph == label)
            return name;
    }
    return label;
}

} // namespace

PopoverHeader::PopoverHeader(std::function<void()> onClose, QWidget* parent)
    : QWidget(parent),
      m_caps(new QHBoxLayout) {
    setFixedHeight(headerHeight);
    auto* title = new QLabel(u"Quorvane"_s, this);
    title->setFont(textFont(font(), TextStyle::Title));
    auto* close = new IconButton(IconButton::Kind::Close, Symbol::Xmark, tr("Close"), this);
    connect(close, &IconButton::clicked, this, std::move(onClose));
    m_caps->setSpacing(capSpacing);
    auto* row = new QHBoxLayout(this);
    constexpr int titleStart =
        panelmetrics::sideMargin + static_cast<int>(appSymbol.size) + titleGap;
    row->setContentsMargins(titleStart, 0, panelmetrics::sideMargin - buttonReach, 0);
    row->setSpacing(0);
    row->addWidget(title);
    row->addSpacing(capsGap);
    row->addLayout(m_caps);
    row->addStretch();
    row->addWidget(close);
}

void PopoverHeader::setKeys(const QStringList& labels) {
    if (std::exchange(m_keys, labels) == labels)
        return;
    while (auto* item = m_caps->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const auto& label : labels) {
        auto* cap = new KeyCap(label, this);
        cap->setAccessibleName(spokenName(label));
        cap->setToolTip(spokenName(label));
        m_caps->addWidget(cap);
    }
}

void PopoverHeader::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    painter.fillRect(0, height() - 1, width(), 1, theme.line);
    const QRect symbol(panelmetrics::sideMargin, 0, static_cast<int>(appSymbol.size), height());
    paintSymbol(
        painter,
        Symbol::CalendarBadgeClock,
        appSymbol,
        QStyle::visualRect(layoutDirection(), rect(), symbol),
        theme.accentText);
}

} // namespace quorvane
