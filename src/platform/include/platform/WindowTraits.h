// SPDX-License-Identifier: MIT
#pragma once

#include <platform/HeldInput.h>

#include <QMargins>

#include <functional>
#include <optional>

class QWindow;

namespace quorvane {

/// Whether the program shows in the desktop's taskbar and pager.
enum class ActivationPolicy { Regular, Accessory };

/// What a floating panel needs from the desktop beyond what a window can ask for itself: above
/// others, on every virtual desktop, with the keys as soon as it shows.
class WindowTraits {
public:
    virtual ~WindowTraits() = default;

    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

    /// Before every show of the panel, with its native window made: desktops forget when it hides.
    virtual void preparePanel(QWindow& window) = 0;

    /// After every show: all desktops, in front of the others, and the keyboard focus.
    virtual void presentPanel(QWindow& window) = 0;

    /// Before every show of a dialog without a parent, with its native window made: tiling window
    /// managers let dialogs float. Qt's own kind of dialog would be left out of taskbars.
    virtual void prepareDialog(QWindow& window) = 0;

    /// In front of the others, without the focus.
    virtual void orderFront(QWindow& window) = 0;

    /// In front of the others and with the keyboard focus, as a direct user action (EWMH
    /// source 2).
    virtual void activate(QWindow& window) = 0;

    /// Whether windows stand where they ask to, and can be asked where they stand.
    [[nodiscard]] virtual bool placesWindows() const = 0;

    /// Whether windows are composited, so that a translucent one shows what is below it.
    [[nodiscard]] virtual bool isComposited() const = 0;

    /// Called whenever that changes; replaces an earlier handler.
    virtual void onCompositingChanged(std::function<void()> handler) = 0;

    /// So much at each edge of the window, in points, is a shadow that it draws itself: not part of
    /// it for the window manager, and below the pointer there is what the shadow lies on. To be
    /// called again when the window has another size.
    virtual void setShadow(QWindow& window, const QMargins& margins) = 0;

    /// What is held at this moment, also while another program takes the input; none where the
    /// desktop does not tell.
    [[nodiscard]] virtual std::optional<HeldInput> heldInput() const = 0;
};

} // namespace quorvane
