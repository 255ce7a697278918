// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/DevicePixels.h>
#include <panel/FavoriteSuggestionChip.h>

#include <QPainter>

namespace quorvane {

namespace {

constexpr double spacing = 5;
constexpr double frameWidth = 0.5;
constexpr SymbolStyle markStyle{9, SymbolStyle::bold};

} // namespace

FavoriteSuggestionChip::FavoriteSuggestionChip(
    const TimeZone& timeZone, const QString& label, std::function<void()> onAdd, QWidget* parent)
    : ZoneChip(timeZone, label, {tr("Add"), std::move(onAdd)}, parent) {
}

ContentRow FavoriteSuggestionChip::content(const Theme& theme) const {
    const auto& color = visualState() == VisualState::Normal ? theme.secondaryText : theme.text;
    ContentRow row(spacing);
    row.addSymbol(Symbol::Plus, besideText(font(), markStyle), color);
    row.addText(text(), labelFont(), color);
    return row;
}

void FavoriteSuggestionChip::paintControl(QPainter& painter, const Theme& theme) {
    fillRounded(painter, rect(), cornerRadius(), overlayFor(visualState(), theme));
    frameRounded(painter, rect(), cornerRadius(), theme.suggestedBorder, frameWidth);
    constexpr int padding = ChipSurface::horizontalPadding;
    content(theme).paint(painter, rect().adjusted(padding, 0, -padding, 0), layoutDirection());
}

} // namespace quorvane
