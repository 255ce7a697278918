// SPDX-License-Identifier: MIT
#include "ScenePicture.h"

#include <controls/DevicePixels.h>
#include <controls/Theme.h>

#include <QPainter>

namespace quorvane {

namespace {

constexpr double windowRadius = 12;

QImage rendered(QWidget& widget, double scale, QWidget::RenderFlags flags) {
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, flags);
    return image;
}

/// The window manager's part: rounded corners and the line around them.
QImage framed(const QImage& content, const Theme& theme) {
    QImage image(content.size(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(content.devicePixelRatio());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QRectF whole({}, image.deviceIndependentSize());
    fillRounded(painter, whole, windowRadius, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.drawImage(QPointF(), content);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    frameRounded(painter, whole, windowRadius, theme.border, 1);
    return image;
}

} // namespace

ScenePicture::ScenePicture(QWidget& window, double scale)
    : m_origin(window.mapToGlobal(QPoint())),
      m_size(window.size()),
      m_scale(scale) {
    const auto content =
        rendered(window, scale, QWidget::DrawWindowBackground | QWidget::DrawChildren);
    m_layers.push_back({framed(content, Theme::of(window.palette())), {}});
}

void ScenePicture::add(QWidget& surface) {
    m_layers.push_back(
        {rendered(surface, m_scale, QWidget::DrawChildren),
         surface.mapToGlobal(QPoint()) - m_origin});
}

void ScenePicture::paint(QPainter& painter, QPoint corner) const {
    for (const auto& layer : m_layers) {
        // As a screen would: windows stand on whole device pixels.
        const auto place = (QPointF(corner + layer.offset) * m_scale).toPoint();
        painter.drawImage(QPointF(place) / m_scale, layer.image);
    }
}

} // namespace quorvane
