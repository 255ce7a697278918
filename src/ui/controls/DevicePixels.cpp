// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quorvane {

QRectF snapped(const QPainter& painter, const QRectF& rect) {
    const auto toDevice = painter.deviceTransform();
    const auto device = toDevice.mapRect(rect);
    const QPointF topLeft(std::round(device.left()), std::round(device.top()));
    const QPointF bottomRight(std::round(device.right()), std::round(device.bottom()));
    return toDevice.inverted().mapRect(QRectF(topLeft, bottomRight));
}

double snappedLine(const QPainter& painter, double points) {
    const double scale = painter.deviceTransform().m11();
    return std::max(1.0, std::round(points * scale)) / scale;
}

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(snapped(painter, rect), radius, radius);
}

void frameRounded(
    QPainter& painter, const QRectF& rect, double radius, const QColor& color, double points) {
    const double width = snappedLine(painter, points);
    const double inset = width / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        snapped(painter, rect).adjusted(inset, inset, -inset, -inset),
        radius - inset,
        radius - inset);
}

} // namespace quorvane
