// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// A section of a SectionColumn that can do with less height than it asks for, by scrolling its own
/// content.
class ScrollingSection {
public:
    virtual ~ScrollingSection() = default;

    /// Asks for `height` points less from now on, where enough remains; for all of it otherwise.
    virtual void holdBack(int height) = 0;

    /// What it asks for less than its content takes, in its present width, in points.
    [[nodiscard]] virtual int heldBack() const = 0;

    /// Whether a bar shows while there is something to scroll. It scrolls without one, too.
    virtual void setScrollBarShown(bool shown) = 0;
};

} // namespace quorvane
