// SPDX-License-Identifier: MIT
#include "../dbus/support/PrivateBus.h"
#include "support/FakeKGlobalAccel.h"

#include <platform/KeyCodes.h>
#include <platform_kglobalaccel/KGlobalAccelTapService.h>
#include <testing/FakeKeyboardLayout.h>

#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto flags = modifier::control | modifier::command;
constexpr KeyChord usual{keycode::d, flags};
constexpr KeyChord other{keycode::f, flags};
const auto usualKey = (Qt::CTRL | Qt::META | Qt::Key_D).toCombined();
const auto otherKey = (Qt::CTRL | Qt::META | Qt::Key_F).toCombined();

class KGlobalAccelTapTest : public testing::Test {
protected:
    KGlobalAccelTapTest() {
        layout.setKey(keycode::d, u"d");
        layout.setKey(keycode::f, u"f");
        daemon.appear();
    }

    void begin(const KeyChord& chord = usual) {
        TapHandlers handlers{
            [this](const KeyPress& press) {
                presses.push_back({static_cast<std::uint32_t>(press.keyCode), press.flags});
                return TapVerdict::Swallow;
            },
            [this] { ++releases; },
            [this] { ++deliveryChanges; },
            [this](const KeyChord& changed) {
                chords.push_back(changed);
            }};
        tap = std::get<std::unique_ptr<EventTap>>(service.createTap(std::move(handlers)));
        tap->watch(chord);
        tap->enable();
    }

    /// As the recorder's choice reaches the tap: it is told, freed, and another one made.
    void record(const KeyChord& chord) {
        tap->watch(chord);
        tap->disable();
        tap.reset();
        begin(chord);
    }

    [[nodiscard]] bool becomes(TapDelivery delivery) {
        return comesTo([&] { return tap->delivery() == delivery; });
    }

    /// The daemon has answered what it was asked so far: it has our key, and tells of presses.
    [[nodiscard]] bool isRegistered(int key = usualKey) {
        return comesTo([&] {
            return daemon.ours() != nullptr && daemon.ours()->isPresent &&
                   daemon.ours()->keys == QList<int>{key} && tap->tellsRelease();
        });
    }

    static bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition);
    }

    PrivateBus bus;
    FakeKGlobalAccel daemon{bus.connection()};
    FakeKeyboardLayout layout;
    KGlobalAccelTapService service{bus.connection(), layout, usual};
    std::unique_ptr<EventTap> tap;
    std::vector<KeyChord> presses;
    std::vector<KeyChord> chords;
    int releases = 0;
    int deliveryChanges = 0;
};

TEST_F(KGlobalAccelTapTest, TellsOfEachPressAndRelease) {
    begin();
    ASSERT_TRUE(isRegistered());
    daemon.press(usualKey);
    daemon.press(usualKey);
    ASSERT_TRUE(comesTo([&] { return presses.size() == 2; }));
    EXPECT_EQ(presses.front(), usual);
    EXPECT_TRUE(tap->isKeyDown());
    daemon.release(usualKey);
    ASSERT_TRUE(comesTo([&] { return releases == 1; }));
    EXPECT_FALSE(tap->isKeyDown());
}

TEST_F(KGlobalAccelTapTest, NamesTheActionForSystemSettings) {
    begin(other);
    ASSERT_TRUE(isRegistered(otherKey));
    const QStringList expected{
        u"org.quorvane.Quorvane"_s, u"toggle"_s, u"Quorvane"_s, u"Show or Hide"_s};
    EXPECT_EQ(daemon.ours()->id, expected);
    EXPECT_EQ(daemon.ours()->usualKeys, QList<int>{usualKey});
}

TEST_F(KGlobalAccelTapTest, KeepsWhatTheUserChoseInSystemSettingsBefore) {
    begin();
    ASSERT_TRUE(isRegistered());
    tap.reset();
    daemon.change({otherKey});
    begin();
    ASSERT_TRUE(comesTo([&] { return !chords.empty(); }));
    EXPECT_EQ(chords.front(), other);
    // The daemon tells of the change at once, and of presses only once it has been asked to.
    ASSERT_TRUE(isRegistered(otherKey));
    daemon.press(otherKey);
    ASSERT_TRUE(comesTo([&] { return !presses.empty(); }));
    EXPECT_EQ(presses.front(), other);
}

TEST_F(KGlobalAccelTapTest, FollowsAChangeInSystemSettings) {
    begin();
    ASSERT_TRUE(isRegistered());
    daemon.change({otherKey});
    ASSERT_TRUE(comesTo([&] { return !chords.empty(); }));
    EXPECT_EQ(chords, std::vector{other});
    EXPECT_EQ(tap->delivery(), TapDelivery::Delivering);
    // The model's answer to that goes no further.
    tap->watch(other);
    daemon.press(otherKey);
    ASSERT_TRUE(comesTo([&] { return !presses.empty(); }));
    EXPECT_EQ(chords.size(), 1U);
    EXPECT_EQ(presses.front(), other);
}

TEST_F(KGlobalAccelTapTest, ServesWhatTheRecorderCouldNotShow) {
    begin();
    ASSERT_TRUE(isRegistered());
    daemon.change({Qt::Key_Calculator});
    daemon.press(Qt::Key_Calculator);
    ASSERT_TRUE(comesTo([&] { return !presses.empty(); }));
    EXPECT_EQ(presses.front(), usual);
    EXPECT_TRUE(chords.empty());
}

TEST_F(KGlobalAccelTapTest, PutsARecordedShortcutIntoSystemSettings) {
    begin();
    ASSERT_TRUE(isRegistered());
    record(other);
    ASSERT_TRUE(isRegistered(otherKey));
    EXPECT_TRUE(chords.empty());
    EXPECT_EQ(tap->delivery(), TapDelivery::Delivering);
}

TEST_F(KGlobalAccelTapTest, NamesWhoHasTheShortcut) {
    daemon.giveTo(u"Spectacle"_s, usualKey);
    begin();
    ASSERT_TRUE(becomes(TapDelivery::HeldElsewhere));
    EXPECT_EQ(tap->holder(), u"Spectacle"_s);
    EXPECT_TRUE(comesTo([&] { return daemon.ours() == nullptr; }))
        << "nothing is left that would look like the user's own choice";
    daemon.takeFrom(u"Spectacle"_s);
    tap->enable();
    ASSERT_TRUE(becomes(TapDelivery::Delivering));
    EXPECT_EQ(tap->holder(), QString());
    EXPECT_TRUE(isRegistered());
}

TEST_F(KGlobalAccelTapTest, NamesWhoHasTheRecordedOne) {
    begin();
    ASSERT_TRUE(isRegistered());
    daemon.giveTo(u"Spectacle"_s, otherKey);
    record(other);
    ASSERT_TRUE(becomes(TapDelivery::HeldElsewhere));
    EXPECT_EQ(tap->holder(), u"Spectacle"_s);
}

TEST_F(KGlobalAccelTapTest, LeavesTheShortcutThatTheUserTookAway) {
    begin();
    ASSERT_TRUE(isRegistered());
    daemon.change({});
    ASSERT_TRUE(becomes(TapDelivery::Unavailable));
    tap.reset();
    begin();
    ASSERT_TRUE(becomes(TapDelivery::Unavailable));
    EXPECT_EQ(daemon.ours()->keys, QList<int>());
    record(other);
    EXPECT_TRUE(isRegistered(otherKey));
    EXPECT_EQ(tap->delivery(), TapDelivery::Delivering);
}

TEST_F(KGlobalAccelTapTest, HasNoShortcutThatTheKeyboardCannotType) {
    begin({keycode::keypad5, flags});
    EXPECT_EQ(tap->delivery(), TapDelivery::NoSuchKey);
    tap->watch(usual);
    EXPECT_TRUE(isRegistered());
}

TEST_F(KGlobalAccelTapTest, RegistersAgainWithADaemonThatComesBack) {
    begin();
    ASSERT_TRUE(isRegistered());
    daemon.vanish();
    ASSERT_TRUE(becomes(TapDelivery::Unavailable));
    daemon.change({otherKey});
    daemon.appear();
    ASSERT_TRUE(becomes(TapDelivery::Delivering));
    ASSERT_TRUE(comesTo([&] { return !chords.empty(); }));
    EXPECT_EQ(chords.back(), other);
}

TEST_F(KGlobalAccelTapTest, DoesNotWaitForADaemonThatHangs) {
    daemon.hang();
    begin();
    EXPECT_EQ(tap->delivery(), TapDelivery::Delivering);
    EXPECT_TRUE(becomes(TapDelivery::Unavailable));
}

TEST_F(KGlobalAccelTapTest, BelievesNoNonsense) {
    daemon.answerNonsense();
    begin();
    EXPECT_TRUE(becomes(TapDelivery::Unavailable));
}

TEST_F(KGlobalAccelTapTest, KnowsWhetherReleasesAreTold) {
    daemon.tellsRelease = false;
    begin();
    ASSERT_TRUE(comesTo([&] { return daemon.ours() != nullptr && daemon.ours()->isPresent; }));
    daemon.press(usualKey);
    ASSERT_TRUE(comesTo([&] { return !presses.empty(); }));
    EXPECT_FALSE(tap->tellsRelease());
    EXPECT_FALSE(tap->isKeyDown());
}

TEST_F(KGlobalAccelTapTest, GivesTheKeysBackInTheEnd) {
    begin();
    ASSERT_TRUE(isRegistered());
    tap.reset();
    EXPECT_TRUE(comesTo([&] { return !daemon.ours()->isPresent; }));
}

TEST_F(KGlobalAccelTapTest, IsOfferedWhileADaemonIsThere) {
    EXPECT_TRUE(KGlobalAccelTapService::isOffered(bus.connection()));
    daemon.vanish();
    EXPECT_FALSE(KGlobalAccelTapService::isOffered(bus.connection()));
}

} // namespace
} // namespace quorvane
