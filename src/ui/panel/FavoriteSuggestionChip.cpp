// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/DevicePixels.h>

#include <QPainter>

#include <panel/FavoriteSuggestionChip.h>

namespace quorvane {

namespace {

constexpr double spacing = 5;
constexpr double frameWidth = 0.5;
constexpr SymbolStyle markStyle{9, SymbolStyle::bold};

} // namespace

FavoriteSuggestionChip::FavoriteSuggestionChip(
    const TimeZone& timeZone, const QString& label, std::function<void()> onAdd, QWidget* parent)
    : ZoneChip(timeZone, label, std::move(onAdd), parent) {
    setAccessibleDescription(tr("Add"));
}

ContentRow FavoriteSuggestionChip::content(const Theme& theme) const {
    const auto& ink = look() == Look::Rest ? theme.text2 : theme.text;
    ContentRow row(spacing);
    row.addSymbol(Symbol::Plus, markStyle, ink);
    row.addText(text(), labelFont(), ink);
    return row;
}

void FavoriteSuggestionChip::paintControl(QPainter& painter, const Theme& theme) {
    fillRounded(painter, rect(), cornerRadius(), overlayFor(look(), theme));
    frameRounded(painter, rect(), cornerRadius(), theme.suggestedEdge, frameWidth);
    constexpr int padding = ChipSurface::horizontalPadding;
    content(theme).paint(painter, rect().adjusted(padding, 0, -padding, 0), layoutDirection());
}

} // namespace quorvane
