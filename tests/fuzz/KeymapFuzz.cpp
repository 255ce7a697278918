// SPDX-License-Identifier: MIT
#include "FuzzInput.h"
#include "FuzzSession.h"
#include "support/TestSeat.h"

#include <wayland_keyboard/WaylandKeyboardLayout.h>

using namespace quorvane;
using namespace std::chrono_literals;

namespace {

/// A program with the keyboard of a compositor.
struct Session {
    TestCompositor compositor;
    TestSeat seat{compositor};
    std::shared_ptr<WaylandConnection> connection =
        WaylandConnection::open(compositor.environment(), 10s).connection;
    WaylandKeyboardLayout layout{connection};

    Session() { connection->listen(); }
};

} // namespace

/// Any bytes as the keymap that a compositor gives, which says any length of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    makeFuzzSession();
    static Session session;
    FuzzInput input(data, size);
    const bool isWhole = input.below(4) != 0;
    const auto said = input.number<std::uint32_t>();
    const auto text = input.rest();
    session.seat.setKeymap(text, isWhole ? static_cast<std::uint32_t>(text.size()) : said);
    demand(session.connection->settle(10s), "the connection holds");
    for (std::uint16_t keyCode = 0; keyCode < 128; ++keyCode) {
        const auto characters = session.layout.characters(keyCode);
        demand(!characters || characters->size() <= 4, "a key types four characters at most");
        (void) session.layout.shiftedCharacters(keyCode);
    }
    return 0;
}
