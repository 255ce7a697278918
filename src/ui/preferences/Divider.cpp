// SPDX-License-Identifier: MIT
#include "Divider.h"

#include <controls/Theme.h>

#include <QPainter>

namespace quorvane {

Divider::Divider(QWidget* parent) : QWidget(parent) {
    setFixedHeight(1);
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), Theme::of(palette()).divider);
}

} // namespace quorvane
