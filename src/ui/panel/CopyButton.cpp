// SPDX-License-Identifier: MIT
#include "CopyButton.h"

#include <controls/Announcement.h>
#include <controls/Theme.h>

#include <QPainter>
#include <QStyle>

#include <utility>

namespace quorvane {

namespace {

constexpr int changeMilliseconds = 200;

} // namespace

CopyButton::CopyButton(MainQueue& queue, QWidget* parent)
    : ActionButton(Prominence::Bordered, Symbol::DocOnDoc, tr("Copy"), parent),
      m_queue(queue) {
    // What became of a press is announced. A name that changes would be read on its own account.
    setAccessibleName(textOf(State::Ready));
    m_change.setDuration(changeMilliseconds);
    m_change.setStartValue(0.0);
    m_change.setEndValue(1.0);
    m_change.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_change, &QVariantAnimation::valueChanged, this, qOverload<>(&CopyButton::update));
}

void CopyButton::confirm() {
    sayForAWhile(State::Confirmed);
}

void CopyButton::refuse() {
    sayForAWhile(State::Refused);
}

void CopyButton::paintFace(QPainter& painter, const Theme& theme) {
    const bool isChanging = m_change.state() == QAbstractAnimation::Running;
    const double progress = isChanging ? m_change.currentValue().toDouble() : 1;
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * (1 - progress));
    if (isChanging)
        paint(painter, faceOf(m_stateBefore, theme));
    painter.setOpacity(opacity * progress);
    paint(painter, faceOf(m_state, theme));
}

void CopyButton::sayForAWhile(State state) {
    setState(state);
    announce(*this, textOf(state));
    m_resets.run(m_queue, confirmation, [this] { setState(State::Ready); });
}

void CopyButton::setState(State state) {
    const bool changes = m_state != state;
    m_stateBefore = std::exchange(m_state, state);
    m_change.stop();
    if (changes && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) != 0)
        m_change.start();
    setText(textOf(state));
}

QString CopyButton::textOf(State state) {
    switch (state) {
    case State::Ready:
        break;
    case State::Confirmed:
        return tr("Copied");
    case State::Refused:
        return tr("Could not copy");
    }
    return tr("Copy");
}

ActionButton::Face CopyButton::faceOf(State state, const Theme& theme) {
    switch (state) {
    case State::Ready:
        break;
    case State::Confirmed:
        return {Symbol::Checkmark, textOf(state), theme.success, theme.success};
    case State::Refused:
        return {Symbol::XmarkCircleFill, textOf(state), theme.danger, theme.danger};
    }
    return {Symbol::DocOnDoc, textOf(state), theme.secondaryText, theme.text};
}

} // namespace quorvane
