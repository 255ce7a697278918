// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/IconButton.h>

#include <QPainter>

namespace quorvane {

namespace {

QColor fillOf(IconButton::Kind kind, PressableControl::Look look, const Theme& theme) {
    if (kind != IconButton::Kind::Close || look == PressableControl::Look::Rest)
        return overlayFor(look, theme);
    return look == PressableControl::Look::Pressed ? theme.dangerPress : theme.dangerHover;
}

QColor inkOf(IconButton::Kind kind, PressableControl::Look look, const Theme& theme) {
    if (look == PressableControl::Look::Rest)
        return theme.text2;
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
    const auto shown = isExpanded() == true ? Look::Pressed : look();
    fillRounded(painter, rect(), cornerRadius(), fillOf(m_kind, shown, theme));
    paintSymbol(painter, m_symbol, {}, rect(), inkOf(m_kind, shown, theme));
}

} // namespace quorvane
