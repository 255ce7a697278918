// SPDX-License-Identifier: MIT
#include "TestVirtualKeyboards.h"
#include "support/TestSeat.h"

#include <support/WaitUntil.h>
#include <testing/VirtualMainQueue.h>

#include <gmock/gmock.h>

#include <chrono>
#include <wayland_keyboard/WaylandAccessibilityRight.h>
#include <wayland_keyboard/WaylandKeyPoster.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

class PosterOnWayland : public testing::Test {
protected:
    TestCompositor m_compositor;
    TestSeat m_seat{m_compositor};
    TestVirtualKeyboards m_typed{m_compositor};
    QStringList m_inFront;
    std::shared_ptr<WaylandConnection> m_connection =
        WaylandConnection::open(m_compositor.environment(), 10s).connection;
    std::shared_ptr<WaylandVirtualKeyboards> m_keyboards =
        std::make_shared<WaylandVirtualKeyboards>(
            m_connection, std::make_shared<WaylandSeats>(m_connection));
    VirtualMainQueue m_queue;
    WaylandKeyPoster m_poster{m_connection, m_keyboards, m_queue, [this] {
                                  return m_inFront;
                              }};
    WaylandAccessibilityRight m_right{m_keyboards};

    void SetUp() override { m_connection->listen(); }

    std::vector<std::string> pasted(PasteKeys keys) {
        std::optional<PostOutcome> outcome;
        m_poster.paste({keys, PasteSource::Clipboard}, [&](PostOutcome told) { outcome = told; });
        EXPECT_FALSE(outcome.has_value());
        EXPECT_TRUE(waitUntil([&] { return outcome.has_value(); }));
        EXPECT_EQ(outcome, PostOutcome::Posted);
        return m_typed.requests();
    }
};

// The codes are the kernel's: 29 Control, 42 Shift, 47 V, 110 Insert; the modifiers XKB's.

TEST_F(PosterOnWayland, TypesControlV) {
    EXPECT_THAT(
        pasted(PasteKeys::ControlV),
        ElementsAre(
            "keymap", "down 29", "modifiers 4", "down 47", "up 47", "up 29", "modifiers 0"));
}

TEST_F(PosterOnWayland, TypesControlShiftV) {
    EXPECT_THAT(
        pasted(PasteKeys::ControlShiftV),
        ElementsAre(
            "keymap",
            "down 29",
            "modifiers 4",
            "down 42",
            "modifiers 5",
            "down 47",
            "up 47",
            "up 42",
            "modifiers 4",
            "up 29",
            "modifiers 0"));
}

TEST_F(PosterOnWayland, KeepsItsKeyboardForTheNextTime) {
    (void) pasted(PasteKeys::ShiftInsert);
    EXPECT_THAT(
        pasted(PasteKeys::ShiftInsert),
        ElementsAre(
            "keymap",
            "down 42",
            "modifiers 1",
            "down 110",
            "up 110",
            "up 42",
            "modifiers 0",
            "down 42",
            "modifiers 1",
            "down 110",
            "up 110",
            "up 42",
            "modifiers 0"));
}

TEST_F(PosterOnWayland, ChoosesTheKeysByTheNameOfTheWindow) {
    EXPECT_EQ(m_poster.pasteTarget()->keys, PasteKeys::ControlV);
    m_inFront = {u"foot"_s};
    EXPECT_EQ(m_poster.pasteTarget()->keys, PasteKeys::ControlShiftV);
    m_inFront = {u"XTerm"_s};
    EXPECT_EQ(m_poster.pasteTarget()->source, PasteSource::Selection);
}

TEST_F(PosterOnWayland, HasTheRightForAsLongAsTheCompositorGivesIt) {
    int changes = 0;
    m_right.onChanged([&changes] { ++changes; });
    EXPECT_EQ(m_right.typing(), TypingRight::Granted);
    m_typed.withdraw();
    EXPECT_TRUE(waitUntil([&changes] { return changes == 1; }));
    EXPECT_EQ(m_right.typing(), TypingRight::Unavailable);
    EXPECT_EQ(m_poster.pasteTarget(), std::nullopt);
    std::optional<PostOutcome> outcome;
    m_poster.paste({}, [&](PostOutcome told) { outcome = told; });
    EXPECT_EQ(outcome, PostOutcome::Unavailable);
}

TEST_F(PosterOnWayland, WaitsNoLongerThanASecondForACompositorThatHangs) {
    m_compositor.hang();
    std::optional<PostOutcome> outcome;
    m_poster.paste(
        {PasteKeys::ControlV, PasteSource::Clipboard}, [&](PostOutcome told) { outcome = told; });
    m_queue.advance(WaylandKeyPoster::longestWait - Seconds(0.001));
    EXPECT_EQ(outcome, std::nullopt);
    m_queue.advance(Seconds(0.001));
    EXPECT_EQ(outcome, PostOutcome::Posted);
}

TEST_F(PosterOnWayland, OutlivesTheCompositor) {
    (void) pasted(PasteKeys::ControlV);
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([this] { return m_right.typing() == TypingRight::Unavailable; }));
    EXPECT_EQ(m_poster.pasteTarget(), std::nullopt);
}

} // namespace
} // namespace quorvane
