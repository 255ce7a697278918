// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>

#include <QMargins>
#include <QRect>

class QPainter;

namespace quorvane {

/// What a popover stands on: round corners and a shadow where windows are composited, elsewhere a
/// plain rectangle with a frame that fills its window.
class PopoverSurface {
public:
    struct Colors {
        QColor background;
        QColor border; ///< of the composited one
    };

    /// `cornerRadius` in points, for the composited one.
    PopoverSurface(bool isComposited, double cornerRadius)
        : m_isComposited(isComposited),
          m_cornerRadius(cornerRadius) {}

    [[nodiscard]] bool isComposited() const { return m_isComposited; }

    /// What the shadow takes of the popover's window on each side.
    [[nodiscard]] QMargins margins() const;

    /// The surface's part of a window's rectangle.
    [[nodiscard]] QRect placeIn(const QRect& window) const;

    void
    paint(QPainter& painter, const QRect& window, const Theme& theme, const Colors& colors) const;

private:
    bool m_isComposited;
    double m_cornerRadius;
};

/// A rounded surface above others: its shadow in steps, without blur, its fill and its frame.
void paintRaisedSurface(
    QPainter& painter,
    const QRect& surface,
    double cornerRadius,
    const Theme& theme,
    const PopoverSurface::Colors& colors);

} // namespace quorvane
