// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/TextStyle.h>
#include <panel/ZoneChip.h>

#include <cmath>

namespace quorvane {

ZoneChip::ZoneChip(
    const TimeZone& timeZone, const QString& label, std::function<void()> onPress, QWidget* parent)
    : PressableControl(parent),
      m_timeZone(timeZone) {
    setText(label);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &ZoneChip::clicked, this, std::move(onPress));
}

void ZoneChip::setLabel(const QString& label) {
    setText(label);
    updateGeometry();
}

QSize ZoneChip::sizeHint() const {
    const double width = content(Theme::of(palette())).width() + 2 * ChipSurface::horizontalPadding;
    return {static_cast<int>(std::ceil(width)), ChipSurface::height};
}

double ZoneChip::cornerRadius() const {
    return ChipSurface::height / 2.0;
}

QFont ZoneChip::labelFont() const {
    return textFont(font(), TextStyle::Callout, QFont::Medium);
}

} // namespace quorvane
