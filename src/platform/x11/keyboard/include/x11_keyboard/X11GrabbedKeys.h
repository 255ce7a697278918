// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvane {

/// The keys of one connection that are held for us on the whole display.
class X11GrabbedKeys {
public:
    /// A key with several states of the modifiers.
    struct Combination {
        xcb_keycode_t keycode = 0;
        std::vector<std::uint16_t> masks;

        friend bool operator==(const Combination&, const Combination&) = default;
    };

    /// While it lives, all of them are let go: keys that we post go to the window in front, also
    /// when they make up one of our own shortcuts. To be used within a grab of the server only, in
    /// which no other program can take them.
    class Pause {
    public:
        explicit Pause(X11GrabbedKeys& keys);
        ~Pause();

        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        X11GrabbedKeys& m_keys;
    };

    explicit X11GrabbedKeys(std::shared_ptr<X11Connection> connection);

    /// False if another program holds any part of it; we then hold none. Waits for the server.
    [[nodiscard]] bool take(const Combination& combination);

    /// Lets go of what take() has got.
    void drop(const Combination& combination);

    /// Gives the keyboard back, which the press of a held key has tied to us. Of no effect if a
    /// press after `time` has tied it again; XCB_CURRENT_TIME gives it back in any case.
    void freeKeyboard(xcb_timestamp_t time);

private:
    [[nodiscard]] std::vector<xcb_void_cookie_t> grab(const Combination& combination);
    void ungrab(const Combination& combination);

    std::shared_ptr<X11Connection> m_connection;
    std::vector<Combination> m_held;
};

} // namespace quorvane
