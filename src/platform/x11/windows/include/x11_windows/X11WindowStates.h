// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>
#include <x11_windows/X11Windows.h>

#include <array>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <utility>

namespace quorvane {

/// Sets and clears states of windows (EWMH, _NET_WM_STATE).
class X11WindowStates {
public:
    /// The values are those of the _NET_WM_STATE message.
    enum class Change : std::uint32_t { Remove = 0, Add = 1 };

    /// Two states that come and go together, by their atoms' names.
    using Pair = std::array<const char*, 2>;

    struct Wish {
        Pair states;
        Change change;
    };

    explicit X11WindowStates(std::shared_ptr<X11Connection> connection)
        : m_connection(std::move(connection)),
          m_windows(m_connection) {}

    /// For a window that is not mapped: the window manager reads its states when it maps it. Other
    /// states, which Qt writes there too, are kept.
    void write(xcb_window_t window, std::initializer_list<Wish> wishes) const;

    /// For a mapped window, whose states belong to the window manager.
    void request(xcb_window_t window, const Pair& states, Change change) const;

private:
    [[nodiscard]] std::array<xcb_atom_t, 2> atoms(const Pair& states) const;

    std::shared_ptr<X11Connection> m_connection;
    X11Windows m_windows;
};

} // namespace quorvane
