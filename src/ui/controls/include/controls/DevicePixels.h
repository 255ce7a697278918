// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace quorvane {

/// The rectangle moved to the nearest device pixels of what the painter paints on.
[[nodiscard]] QRectF snapped(const QPainter& painter, const QRectF& rect);

/// The width of a line, in points, as whole device pixels: at least one.
[[nodiscard]] double snappedLine(const QPainter& painter, double points);

/// A rounded rectangle of one colour, on device pixels.
void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& color);

/// A line along the inside of a rounded rectangle, `points` wide.
void frameRounded(
    QPainter& painter, const QRectF& rect, double radius, const QColor& color, double points);

} // namespace quorvane
