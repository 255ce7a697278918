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

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int headerHeight = 48;
constexpr SymbolStyle appSymbol{20, SymbolStyle::regular};
constexpr int titleGap = 8;
constexpr int capsGap = 12;
constexpr int buttonSpacing = 4;
constexpr int buttonOverhang = 8; ///< what the last button paints ends with the column

} // namespace

PopoverHeader::PopoverHeader(Callbacks callbacks, const PopoverEffects& effects, QWidget* parent)
    : QWidget(parent),
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
    constexpr int titleStart =
        panelmetrics::sideMargin + static_cast<int>(appSymbol.size) + titleGap;
    auto* title = new QLabel(u"Quorvane"_s, this);
    title->setFont(textFont(font(), TextStyle::Title));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(titleStart);
    row->addWidget(title);
    row->addSpacing(capsGap);
    row->addWidget(m_caps);
    row->addStretch();
    for (auto* button : buttons) {
        row->addSpacing(buttonSpacing);
        row->addWidget(button);
    }
    row->addSpacing(panelmetrics::sideMargin - buttonOverhang);
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
    const QRect symbol(panelmetrics::sideMargin, 0, static_cast<int>(appSymbol.size), height());
    paintSymbol(
        painter,
        Symbol::CalendarBadgeClock,
        appSymbol,
        QStyle::visualRect(layoutDirection(), rect(), symbol),
        theme.accentText);
}

} // namespace quorvane
