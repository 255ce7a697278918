// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

#include <vector>

namespace quorvane {

/// A window as it is now, and the surfaces that stand at it, each at its own place.
class ScenePicture {
public:
    /// At `scale` device pixels for a point. The window gets the rounded frame of a panel.
    ScenePicture(QWidget& window, double scale);

    /// Lays `surface`, a window of its own, over what is there.
    void add(QWidget& surface);

    /// Of the window alone, in points.
    [[nodiscard]] QSize size() const { return m_size; }

    /// With the window's upper left corner at `corner`; the painter is to have the same scale.
    void paint(QPainter& painter, QPoint corner) const;

private:
    struct Layer {
        QImage image;
        QPoint offset; ///< from the window's corner, in points
    };

    QPoint m_origin;
    QSize m_size;
    double m_scale;
    std::vector<Layer> m_layers;
};

} // namespace quorvane
