// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/IconButton.h>

#include <QPainter>

namespace quorvane {

namespace {

QColor fillOf(IconButton::Kind kind, PressableControl::VisualState state, const Theme& theme) {
    if (kind != IconButton::Kind::Close || state == PressableControl::VisualState::Normal)
        return overlayFor(state, theme);
    return state == PressableControl::VisualState::Pressed ? theme.dangerPressed
                                                           : theme.dangerHover;
}

QColor
foregroundOf(IconButton::Kind kind, PressableControl::VisualState state, const Theme& theme) {
    if (state == PressableControl::VisualState::Normal)
        return theme.secondaryText;
    return kind == IconButton::Kind::Close ? theme.danger : theme.text;
}

} // namespace

IconButton::IconButton(Kind kind, Symbol symbol, const QString& name, QWidget* parent)
    : PressableControl(parent),
      m_kind(kind),
      m_symbol(symbol) {
    setFace(symbol, name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconButton::setFace(Symbol symbol, const QString& name) {
    m_symbol = symbol;
    setToolTip(name);
    setAccessibleName(name);
    update();
}

QSize IconButton::sizeHint() const {
    switch (m_kind) {
    case Kind::Section:
        return {24, 24};
    case Kind::Framed:
        return {26, 26};
    case Kind::Header:
    case Kind::Close:
        break;
    }
    return {28, 28};
}

double IconButton::cornerRadius() const {
    return m_kind == Kind::Section || m_kind == Kind::Framed ? 6 : 8;
}

void IconButton::paintControl(QPainter& painter, const Theme& theme) {
    const auto shown = isExpanded() == true ? VisualState::Pressed : visualState();
    fillRounded(painter, rect(), cornerRadius(), fillOf(m_kind, shown, theme));
    paintSymbol(
        painter,
        m_symbol,
        besideText(font(), SymbolStyle()),
        rect(),
        foregroundOf(m_kind, shown, theme));
}

} // namespace quorvane
