// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <wayland_keyboard/WaylandVirtualKeyboard.h>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSeats.h>
#include <wayland_server/WaylandSubscription.h>

struct zwp_virtual_keyboard_manager_v1;

namespace quorvane {

/// The keyboard of ours on the user's seat, by zwp_virtual_keyboard_manager_v1. It is made when it
/// is first used and stays: some programs lose the first key of a new one.
class WaylandVirtualKeyboards {
public:
    /// The global by which a compositor lets programs bring keyboards.
    static constexpr auto interfaceName = "zwp_virtual_keyboard_manager_v1";

    WaylandVirtualKeyboards(
        std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandSeats> seats);
    ~WaylandVirtualKeyboards();

    WaylandVirtualKeyboards(const WaylandVirtualKeyboards&) = delete;
    WaylandVirtualKeyboards& operator=(const WaylandVirtualKeyboards&) = delete;

    /// Whether there can be one now.
    [[nodiscard]] bool isAvailable() const;

    /// Null where there can be none.
    [[nodiscard]] WaylandVirtualKeyboard* keyboard();

    /// Called whenever isAvailable() may say something else than before; replaces an earlier
    /// handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    void add(const WaylandGlobal& global);
    void end();
    void tellChanged() const;

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<WaylandSeats> m_seats;
    zwp_virtual_keyboard_manager_v1* m_manager = nullptr;
    std::uint32_t m_global = 0;
    QByteArray m_keymap; ///< made when it is first needed
    std::unique_ptr<WaylandVirtualKeyboard> m_keyboard;
    std::function<void()> m_changed;
    WaylandSubscription m_following;
    WaylandSubscription m_seatChanges;
    WaylandSubscription m_lost;
};

} // namespace quorvane
