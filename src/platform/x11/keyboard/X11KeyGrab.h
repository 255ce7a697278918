// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvane {

/// A key with several states of the modifiers, held for us on the whole display as long as this
/// object lives. Each press then comes to us alone and halts the keyboard until we have answered.
class X11KeyGrab {
public:
    struct Combination {
        xcb_keycode_t keycode = 0;
        std::vector<std::uint16_t> masks;

        friend bool operator==(const Combination&, const Combination&) = default;
    };

    /// Null if another program holds any part of it; we then hold none.
    [[nodiscard]] static std::unique_ptr<X11KeyGrab>
    take(std::shared_ptr<X11Connection> connection, Combination combination);

    ~X11KeyGrab();

    X11KeyGrab(const X11KeyGrab&) = delete;
    X11KeyGrab& operator=(const X11KeyGrab&) = delete;

    [[nodiscard]] const Combination& combination() const { return m_combination; }

    /// Whether the event can be this grab's, not a leftover of an earlier one.
    [[nodiscard]] bool canHaveSent(const xcb_generic_event_t& event) const;

    /// Keeps the press that halted the keyboard from everyone else. Its release goes to the window
    /// with the focus; each repeat comes to us as a press of its own.
    void swallow();

    /// Hands the press on to where it would have gone without us.
    void replay(xcb_timestamp_t time);

private:
    X11KeyGrab(std::shared_ptr<X11Connection> connection, Combination combination);

    [[nodiscard]] bool grabAll();

    std::shared_ptr<X11Connection> m_connection;
    Combination m_combination;
    std::uint32_t m_firstRequest = 0;
};

} // namespace quorvane
