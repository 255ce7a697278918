// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/TextStyle.h>
#include <panel/ZoneChip.h>

#include <cmath>

namespace quorvane {

ZoneChip::ZoneChip(const TimeZone& timeZone, const QString& label, Press press, QWidget* parent)
    : PressableControl(parent),
      m_timeZone(timeZone),
      m_pressName(std::move(press.name)) {
    setText(label);
    setToolTip(m_pressName);
    setAccessibleDescription(m_pressName);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &ZoneChip::clicked, this, std::move(press.run));
}

void ZoneChip::setTexts(const QString& label, const QString& place) {
    //: The place and offset of a time zone, then what a click does: "Toronto, UTC−5. Remove"
    const auto description = tr("%1. %2").arg(place, m_pressName);
    if (toolTip() != description) {
        setToolTip(description);
        setAccessibleDescription(description);
    }
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
