// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <panel/TimeZoneChip.h>

#include <QKeyEvent>
#include <QPainter>

namespace quorvane {

namespace {

constexpr double spacing = 5;
constexpr double frameWidth = 0.5;
constexpr SymbolStyle markStyle{9, SymbolStyle::bold};

double fillOpacity(PressableControl::VisualState state) {
    switch (state) {
    case PressableControl::VisualState::Hover:
        return 0.18;
    case PressableControl::VisualState::Pressed:
        return 0.26;
    case PressableControl::VisualState::Normal:
        break;
    }
    return 0.12;
}

} // namespace

TimeZoneChip::TimeZoneChip(
    const TimeZone& timeZone, const QString& label, std::function<void()> onRemove, QWidget* parent)
    : ZoneChip(timeZone, label, {tr("Remove"), std::move(onRemove)}, parent) {
}

void TimeZoneChip::keyPressEvent(QKeyEvent* event) {
    const bool removes = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (removes && modifiers == Qt::NoModifier && !event->isAutoRepeat())
        click();
    else
        ZoneChip::keyPressEvent(event);
}

ContentRow TimeZoneChip::content(const Theme& theme) const {
    ContentRow row(spacing);
    row.addText(text(), labelFont(), theme.text);
    row.addSymbol(
        Symbol::Xmark,
        besideText(font(), markStyle),
        visualState() == VisualState::Normal ? theme.secondaryText : theme.text);
    return row;
}

void TimeZoneChip::paintControl(QPainter& painter, const Theme& theme) {
    const auto fill = withOpacity(theme.accentText, fillOpacity(visualState()));
    fillRounded(painter, rect(), cornerRadius(), fill);
    frameRounded(painter, rect(), cornerRadius(), theme.selectedBorder, frameWidth);
    constexpr int padding = ChipSurface::horizontalPadding;
    content(theme).paint(painter, rect().adjusted(padding, 0, -padding, 0), layoutDirection());
}

} // namespace quorvane
