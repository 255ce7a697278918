// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// Whether the desktop starts this program, hidden, when the user logs in. The user may decide that
/// in the desktop's own settings as well.
class Autostart {
public:
    /// What has become of the last setOn().
    enum class Request {
        Settled, ///< isOn() is what was asked for, or nothing was
        Asked,   ///< the desktop has not answered yet; it may be asking the user
        Refused  ///< it was not done
    };

    virtual ~Autostart() = default;

    /// Whether this can be decided here.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// As it is at this moment.
    [[nodiscard]] virtual bool isOn() const = 0;

    /// Only for what the user has just asked for. Where it fails isOn() is as before.
    virtual void setOn(bool on) = 0;

    [[nodiscard]] virtual Request request() const = 0;

    /// Called whenever isOn() or request() may say something else than before, and after each
    /// setOn(); replaces an earlier handler.
    virtual void onChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
