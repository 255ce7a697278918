// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/DimmingOverlay.h>
#include <controls/Theme.h>

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace quorvane {

namespace {

constexpr double leastHighContrastOpacity = 0.6;
constexpr double frameWidth = 1;
constexpr double frameRadius = 8;

} // namespace

DimmingOverlay::DimmingOverlay(QWidget* dimmed) : QWidget(dimmed) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    dimmed->installEventFilter(this);
    hide();
}

void DimmingOverlay::setOpacity(double opacity) {
    m_opacity = opacity;
    setGeometry(parentWidget()->rect());
    setVisible(opacity < 1);
    raise();
    update();
}

bool DimmingOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    else if (event->type() == QEvent::ChildAdded)
        raise();
    return QWidget::eventFilter(watched, event);
}

void DimmingOverlay::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    const double opacity =
        theme.isHighContrast ? std::max(m_opacity, leastHighContrastOpacity) : m_opacity;
    painter.fillRect(rect(), withOpacity(theme.windowBackground, 1 - opacity));
    if (theme.isHighContrast && m_isFramed)
        paintFrame(painter, theme);
}

void DimmingOverlay::paintFrame(QPainter& painter, const Theme& theme) const {
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(theme.text, frameWidth);
    pen.setDashPattern({4, 3});
    painter.setPen(pen);
    const QRectF place = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(place, frameRadius, frameRadius);
}

} // namespace quorvane
