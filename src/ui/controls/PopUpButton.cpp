// SPDX-License-Identifier: MIT
#include "PopUpButton.h"

#include <controls/ChipSurface.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>

#include <QAccessible>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvane {

namespace {

constexpr int spacing = 6;
constexpr SymbolStyle chevronStyle{10, SymbolStyle::bold};

} // namespace

PopUpButton::PopUpButton(
    PopoverEffects effects, PopoverOpener::MakeContent makeList, QWidget* parent)
    : PressableControl(parent),
      m_list(*this, std::move(effects), std::move(makeList)) {
    connect(this, &PopUpButton::clicked, &m_list, &PopoverOpener::toggle);
    connect(this, &PopUpButton::valueChanged, this, &PopUpButton::announceValue);
}

void PopUpButton::setTitle(const QString& title, const QStringList& titles) {
    if (titles != m_titles) {
        m_titles = titles;
        updateGeometry();
    }
    if (title == text())
        return;
    setText(title);
    Q_EMIT valueChanged(title);
}

void PopUpButton::announceValue(const QString& title) {
    QAccessibleValueChangeEvent change(this, title);
    QAccessible::updateAccessibility(&change);
}

QSize PopUpButton::sizeHint() const {
    const QFontMetricsF metrics(textFont(font(), TextStyle::Callout));
    double widest = metrics.horizontalAdvance(text());
    for (const auto& title : m_titles)
        widest = std::max(widest, metrics.horizontalAdvance(title));
    const double content = std::ceil(widest) + spacing + besideText(font(), chevronStyle).size;
    return {static_cast<int>(content) + 2 * ChipSurface::horizontalPadding, ChipSurface::height};
}

double PopUpButton::cornerRadius() const {
    return ChipSurface::cornerRadius;
}

void PopUpButton::paintControl(QPainter& painter, const Theme& theme) {
    const auto frame = m_list.isOpen() ? ChipSurface::Frame::Open : ChipSurface::Frame::Plain;
    ChipSurface::paint(painter, rect(), theme, visualState(), frame);
    constexpr int padding = ChipSurface::horizontalPadding;
    const auto inner = rect().adjusted(padding, 0, -padding, 0);
    const auto style = besideText(font(), chevronStyle);
    const int chevron = static_cast<int>(style.size);
    const auto placed = [&](const QRect& place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    painter.setFont(textFont(font(), TextStyle::Callout));
    painter.setPen(theme.text);
    painter.drawText(
        placed(inner.adjusted(0, 0, -chevron - spacing, 0)),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        text());
    const QRect end(inner.right() + 1 - chevron, 0, chevron, height());
    paintSymbol(painter, Symbol::ChevronDown, style, placed(end), theme.secondaryText);
}

} // namespace quorvane
