// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/ToggleSwitch.h>

#include <QPainter>
#include <QStyle>

namespace quorvane {

namespace {

constexpr QSize trackSize{32, 18};
constexpr int targetHeight = 24;
constexpr int knobSize = 14;
constexpr int knobInset = 2;
constexpr int knobMilliseconds = 120;

} // namespace

ToggleSwitch::ToggleSwitch(QWidget* parent) : PressableControl(parent) {
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_knob.setStartValue(0.0);
    m_knob.setEndValue(1.0);
    m_knob.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_knob, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(this, &ToggleSwitch::toggled, this, &ToggleSwitch::moveKnob);
}

QSize ToggleSwitch::sizeHint() const {
    return {trackSize.width(), targetHeight};
}

FocusOutline ToggleSwitch::focusOutline() const {
    return {track(), cornerRadius()};
}

double ToggleSwitch::cornerRadius() const {
    return trackSize.height() / 2.0;
}

void ToggleSwitch::paintControl(QPainter& painter, const Theme& theme) {
    const bool moving = m_knob.state() == QAbstractAnimation::Running;
    const double way = moving ? m_knob.currentValue().toDouble() : (isChecked() ? 1 : 0);
    const double along = layoutDirection() == Qt::RightToLeft ? 1 - way : way;
    const double run = trackSize.width() - 2 * knobInset - knobSize;
    const QRectF knob(
        track().left() + knobInset + along * run, track().top() + knobInset, knobSize, knobSize);
    fillRounded(
        painter,
        track(),
        cornerRadius(),
        isChecked() ? accentFill(visualState(), theme) : theme.switchTrack);
    painter.setBrush(theme.switchKnob);
    painter.drawEllipse(knob);
}

QRectF ToggleSwitch::track() const {
    return {
        0,
        (height() - trackSize.height()) / 2.0,
        trackSize.width() * 1.0,
        trackSize.height() * 1.0};
}

void ToggleSwitch::moveKnob() {
    if (!isVisible() || style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0)
        return;
    m_knob.setDuration(knobMilliseconds);
    m_knob.setDirection(isChecked() ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    m_knob.start();
}

} // namespace quorvane
