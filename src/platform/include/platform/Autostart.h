// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// Whether the desktop starts this program, hidden, when the user logs in. The user may decide that
/// in the desktop's own settings as well.
class Autostart {
public:
    virtual ~Autostart() = default;

    /// Whether this can be decided here.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// As it is at this moment.
    [[nodiscard]] virtual bool isOn() const = 0;

    /// Only for what the user has just asked for. Where it fails isOn() is as before.
    virtual void setOn(bool on) = 0;

    /// Called whenever isOn() may say something else than before, and after each setOn(); replaces
    /// an earlier handler.
    virtual void onChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
