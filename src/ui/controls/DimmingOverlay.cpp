// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/DimmingOverlay.h>
#include <controls/Theme.h>

#include <QEvent>
#include <QPainter>

namespace quorvane {

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
    painter.fillRect(rect(), withOpacity(Theme::of(palette()).windowBackground, 1 - m_opacity));
}

} // namespace quorvane
