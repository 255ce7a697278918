// SPDX-License-Identifier: MIT
#include "TestFakeInput.h"
#include "TestKeyStates.h"

#include <platform/KeyCodes.h>
#include <support/WaitUntil.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/VirtualMainQueue.h>

#include <gmock/gmock.h>

#include <chrono>
#include <wayland_kwin/KwinAccessibilityRight.h>
#include <wayland_kwin/KwinKeyPoster.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAreArray;

// As org_kde_kwin_keystate counts them.
constexpr std::uint32_t alt = 3;
constexpr std::uint32_t control = 4;
constexpr std::uint32_t shift = 5;
constexpr std::uint32_t super = 6;
constexpr std::uint32_t altGr = 7;

class PosterOnKwin : public testing::Test {
protected:
    TestCompositor m_compositor;
    TestFakeInput m_typed{m_compositor};
    FakeKeyboardLayout m_layout;
    QStringList m_inFront;
    std::shared_ptr<WaylandConnection> m_connection =
        WaylandConnection::open(m_compositor.environment(), 10s).connection;
    std::shared_ptr<KwinFakeInput> m_input = std::make_shared<KwinFakeInput>(m_connection);
    VirtualMainQueue m_queue;
    KwinKeyPoster m_poster{m_input, KwinModifiers(m_connection), m_queue, m_layout, [this] {
                               return m_inFront;
                           }};
    KwinAccessibilityRight m_right{m_input};

    void SetUp() override {
        m_layout.setKey(keycode::v, u"v");
        m_connection->listen();
    }

    /// The outcome, once there is one.
    std::shared_ptr<std::optional<PostOutcome>> paste() {
        auto outcome = std::make_shared<std::optional<PostOutcome>>();
        const auto target = m_poster.pasteTarget();
        EXPECT_TRUE(target);
        m_poster.paste(
            target.value_or(PasteTarget{}), [outcome](PostOutcome told) { *outcome = told; });
        return outcome;
    }

    /// The keys after those that were let go.
    void expectTyped(std::vector<std::string> keys) {
        EXPECT_EQ(*paste(), PostOutcome::Posted);
        EXPECT_TRUE(m_connection->settle(10s));
        // The kernel's codes: Shift, Control, Alt and Super, left and right.
        std::vector<std::string> expected{
            "authenticate Quorvane",
            "up 42",
            "up 54",
            "up 29",
            "up 97",
            "up 56",
            "up 100",
            "up 125",
            "up 126"};
        expected.insert(expected.end(), keys.begin(), keys.end());
        EXPECT_THAT(m_typed.requests(), ElementsAreArray(expected));
    }
};

TEST_F(PosterOnKwin, TypesControlV) {
    expectTyped({"down 29", "down 47", "up 47", "up 29"});
}

TEST_F(PosterOnKwin, TypesControlShiftVInATerminal) {
    m_inFront = {u"org.kde.konsole"_s, u"konsole"_s};
    expectTyped({"down 29", "down 42", "down 47", "up 47", "up 42", "up 29"});
}

TEST_F(PosterOnKwin, TakesTheKeyThatTypesVInTheLayoutInUse) {
    m_layout.setKey(keycode::v, u"k");
    m_layout.setKey(keycode::period, u"v"); // "us(dvorak)"
    expectTyped({"down 29", "down 52", "up 52", "up 29"});
}

TEST_F(PosterOnKwin, TypesShiftInsertWhereNoKeyTypesV) {
    m_layout.setKey(keycode::v, u"м"); // "ru"
    EXPECT_EQ(m_poster.pasteTarget()->source, PasteSource::Clipboard);
    expectTyped({"down 42", "down 110", "up 110", "up 42"});
}

TEST_F(PosterOnKwin, TakesThePositionWhereNobodyTellsTheLayout) {
    m_layout.setAvailable(false);
    expectTyped({"down 29", "down 47", "up 47", "up 29"});
}

TEST_F(PosterOnKwin, HasTheRightForAsLongAsKwinGivesIt) {
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

TEST_F(PosterOnKwin, OutlivesKwin) {
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([this] { return m_right.typing() == TypingRight::Unavailable; }));
}

TEST_F(PosterOnKwin, TypesAtOnceWhereKwinTellsOfNoModifiers) {
    TestKeyStates states(m_compositor, 4);
    states.hold({shift});
    EXPECT_TRUE(m_connection->settle(10s));
    expectTyped({"down 29", "down 47", "up 47", "up 29"});
}

TEST_F(PosterOnKwin, WaitsForWhatOnlyTheUserCanLetGo) {
    TestKeyStates states(m_compositor, 5);
    for (const auto held : {shift, alt, super, altGr}) {
        states.hold({held});
        EXPECT_TRUE(m_connection->settle(10s));
        const auto before = m_typed.requests();
        const auto outcome = paste();
        EXPECT_TRUE(m_connection->settle(10s));
        m_queue.advance(KwinKeyPoster::longestWait - Seconds(0.001));
        EXPECT_TRUE(m_connection->settle(10s));
        EXPECT_EQ(*outcome, std::nullopt) << held;
        EXPECT_EQ(m_typed.requests(), before);
        states.hold({});
        EXPECT_TRUE(waitUntil([&] { return *outcome == PostOutcome::Posted; })) << held;
        EXPECT_TRUE(m_connection->settle(10s));
        EXPECT_GT(m_typed.requests().size(), before.size());
    }
}

TEST_F(PosterOnKwin, LetsTheUserHoldWhatItPressesItself) {
    TestKeyStates states(m_compositor, 5);
    states.hold({control});
    EXPECT_TRUE(m_connection->settle(10s));
    auto outcome = paste();
    EXPECT_TRUE(waitUntil([&] { return *outcome == PostOutcome::Posted; }));
    m_inFront = {u"org.kde.konsole"_s, u"konsole"_s};
    states.hold({control, shift});
    outcome = paste();
    EXPECT_TRUE(waitUntil([&] { return *outcome == PostOutcome::Posted; }));
}

TEST_F(PosterOnKwin, TypesNothingWhereTheUserDoesNotLetGo) {
    TestKeyStates states(m_compositor, 5);
    states.hold({super});
    EXPECT_TRUE(m_connection->settle(10s));
    const auto outcome = paste();
    EXPECT_TRUE(m_connection->settle(10s));
    m_queue.advance(KwinKeyPoster::longestWait);
    EXPECT_EQ(*outcome, PostOutcome::Unavailable);
    states.hold({});
    EXPECT_TRUE(m_connection->settle(10s));
    EXPECT_THAT(m_typed.requests(), ElementsAreArray({"authenticate Quorvane"}));
}

TEST_F(PosterOnKwin, FollowsTheKeysOnlyWhileItWaits) {
    TestKeyStates states(m_compositor, 5);
    states.hold({shift});
    EXPECT_TRUE(m_connection->settle(10s));
    EXPECT_EQ(states.listeners(), 0U);
    const auto outcome = paste();
    EXPECT_TRUE(m_connection->settle(10s));
    EXPECT_EQ(states.listeners(), 1U);
    states.hold({});
    EXPECT_TRUE(waitUntil([&] { return *outcome == PostOutcome::Posted; }));
    EXPECT_TRUE(m_connection->settle(10s));
    EXPECT_EQ(states.listeners(), 0U);
    EXPECT_TRUE(m_queue.isIdle());
}

TEST_F(PosterOnKwin, LosesKwinWhileItWaits) {
    TestKeyStates states(m_compositor, 5);
    states.hold({shift});
    EXPECT_TRUE(m_connection->settle(10s));
    const auto outcome = paste();
    m_typed.withdraw();
    EXPECT_TRUE(waitUntil([this] { return m_right.typing() == TypingRight::Unavailable; }));
    states.hold({});
    EXPECT_TRUE(waitUntil([&] { return *outcome == PostOutcome::Unavailable; }));
}

} // namespace
} // namespace quorvane
