// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSubscription.h>

namespace quorvane {

/// The modifier keys that the user holds, by org_kde_kwin_keystate, which tells of them from
/// version 5 on. KWin offers it to programs whose desktop entry asks for it. It tells of every key
/// that the user presses anywhere, so it is asked only while somebody waits.
class KwinModifiers {
public:
    static constexpr auto interfaceName = "org_kde_kwin_keystate";
    static constexpr std::uint32_t firstVersion = 5;

    /// By the interface's numbers.
    enum Modifier : std::uint32_t { Alt = 3, Control = 4, Shift = 5, Super = 6, AltGr = 7 };

    explicit KwinModifiers(std::shared_ptr<WaylandConnection> connection);

    /// Calls `done` once, when none of these is held: before it returns where KWin tells of none.
    /// Never after the subscription is dropped, nor when the connection is lost meanwhile.
    [[nodiscard]] WaylandSubscription
    whenReleased(std::vector<Modifier> modifiers, std::function<void()> done);

private:
    struct Wait;

    std::shared_ptr<WaylandConnection> m_connection;
};

} // namespace quorvane
