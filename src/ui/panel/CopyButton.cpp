// SPDX-License-Identifier: MIT
#include "CopyButton.h"

#include <controls/Theme.h>

#include <QPainter>
#include <QStyle>

namespace quorvane {

namespace {

constexpr int changeMilliseconds = 200;

} // namespace

CopyButton::CopyButton(MainQueue& queue, QWidget* parent)
    : ActionButton(Prominence::Bordered, Symbol::DocOnDoc, tr("Copy"), parent),
      m_queue(queue) {
    m_change.setDuration(changeMilliseconds);
    m_change.setStartValue(0.0);
    m_change.setEndValue(1.0);
    m_change.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_change, &QVariantAnimation::valueChanged, this, qOverload<>(&CopyButton::update));
}

void CopyButton::confirm() {
    setCopyConfirmed(true);
    m_resets.run(m_queue, confirmation, [this] { setCopyConfirmed(false); });
}

void CopyButton::paintFace(QPainter& painter, const Theme& theme) {
    const bool isChanging = m_change.state() == QAbstractAnimation::Running;
    const double progress = isChanging ? m_change.currentValue().toDouble() : 1;
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * (1 - progress));
    if (isChanging)
        paint(painter, faceWhile(!m_copyConfirmed, theme));
    painter.setOpacity(opacity * progress);
    paint(painter, faceWhile(m_copyConfirmed, theme));
}

void CopyButton::setCopyConfirmed(bool confirmed) {
    const bool changes = std::exchange(m_copyConfirmed, confirmed) != confirmed;
    m_change.stop();
    if (changes && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) != 0)
        m_change.start();
    // The button's text is also its name: whoever listens hears it change.
    setText(confirmed ? tr("Copied") : tr("Copy"));
}

ActionButton::Face CopyButton::faceWhile(bool confirmed, const Theme& theme) const {
    return confirmed ? Face{Symbol::Checkmark, tr("Copied"), theme.success, theme.success}
                     : Face{Symbol::DocOnDoc, tr("Copy"), theme.secondaryText, theme.text};
}

} // namespace quorvane
