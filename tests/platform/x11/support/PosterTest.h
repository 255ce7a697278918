// SPDX-License-Identifier: MIT
#pragma once

#include "support/ForeignWindow.h"
#include "support/X11Test.h"

#include <testing/PasteOutcome.h>
#include <x11_keyboard/X11KeyPoster.h>

#include <linux/input-event-codes.h>
#include <memory>
#include <optional>
#include <vector>

namespace quorvane {

constexpr xcb_keycode_t x11(std::uint16_t evdevCode) {
    return static_cast<xcb_keycode_t>(evdevCode + 8);
}

/// Keys that are posted into the window of another program.
class PosterOnX11 : public X11Test {
protected:
    [[nodiscard]] X11KeyPoster poster() {
        return {
            m_connection,
            {X11Keymap::open(m_queue),
             [this] {
                 return X11Keymap::open(m_queue, X11Keymap::Source::PostedKeys);
             }},
            std::make_shared<X11GrabbedKeys>(m_connection)};
    }

    [[nodiscard]] std::optional<PostOutcome> paste() {
        auto keys = poster();
        const auto target = keys.pasteTarget();
        return target ? pasteOutcome(keys, *target) : PostOutcome::NoSuchKey;
    }

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() { return poster().pasteTarget(); }

    /// What the window receives from now on, until it has received the release of all.
    [[nodiscard]] std::vector<ReceivedKey> keysOf(ForeignWindow& window, std::size_t count) {
        EXPECT_TRUE(waitUntil([&] { return window.keys().size() >= count; }));
        return window.keys();
    }
};

} // namespace quorvane
