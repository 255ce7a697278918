// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

namespace quorvane {

/// What the focus ring goes around, in the coordinates of the widget that has the focus; an empty
/// rectangle for no ring.
struct FocusOutline {
    QRectF rect;
    double radius = 0;
};

/// A widget that shows the keyboard's focus by the ring of its window (see FocusRing.h).
class FocusShaped {
public:
    virtual ~FocusShaped() = default;
    [[nodiscard]] virtual FocusOutline focusOutline() const = 0;
};

} // namespace quorvane
