// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>
#include <platform/ShortcutLists.h>
#include <testing/CallLog.h>
#include <testing/FakeDesktopShortcut.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr KeyChord chord{keycode::d, modifier::command};

class ShortcutListsTest : public testing::Test {
protected:
    ShortcutListsTest() {
        auto firstOne = std::make_unique<FakeDesktopShortcut>(log);
        auto secondOne = std::make_unique<FakeDesktopShortcut>(log);
        first = firstOne.get();
        second = secondOne.get();
        ShortcutLists::Lists both;
        both.push_back(std::move(firstOne));
        both.push_back(std::move(secondOne));
        lists = std::make_unique<ShortcutLists>(std::move(both));
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeDesktopShortcut* first = nullptr;
    FakeDesktopShortcut* second = nullptr;
    std::unique_ptr<ShortcutLists> lists;
};

TEST_F(ShortcutListsTest, AreTheFirstThatIsThere) {
    EXPECT_EQ(lists->desktopName(), QString());
    second->setDesktopName(u"GNOME"_s);
    EXPECT_EQ(lists->desktopName(), u"GNOME"_s);
    first->setDesktopName(u"the desktop"_s);
    EXPECT_EQ(lists->desktopName(), u"the desktop"_s);
}

TEST_F(ShortcutListsTest, AddTheEntryToThatOne) {
    second->setDesktopName(u"GNOME"_s);
    second->setHolder(chord, u"Notes"_s);
    EXPECT_EQ(lists->holder(chord), u"Notes"_s);
    lists->bind(chord);
    EXPECT_EQ(second->bound(), chord);
    EXPECT_EQ(first->bound(), std::nullopt);
}

// A desktop that learns of a better way keeps the entry that the user has.
TEST_F(ShortcutListsTest, StayWithTheOneThatHasTheEntry) {
    second->setDesktopName(u"GNOME"_s);
    lists->bind(chord);
    first->setDesktopName(u"the desktop"_s);
    EXPECT_EQ(lists->desktopName(), u"GNOME"_s);
    EXPECT_EQ(lists->bound(), chord);
    lists->unbind();
    EXPECT_EQ(second->bound(), std::nullopt);
    EXPECT_EQ(lists->desktopName(), u"the desktop"_s);
}

TEST_F(ShortcutListsTest, TellWhenAnyOfThemChanges) {
    int changes = 0;
    lists->onChanged([&changes] { ++changes; });
    first->setBound(chord);
    second->setBound(chord);
    EXPECT_EQ(changes, 2);
}

TEST_F(ShortcutListsTest, TellWhereTheUserHasChosenOtherKeys) {
    std::optional<KeyChord> told;
    lists->onRebound([&told](const KeyChord& to) { told = to; });
    second->rebind(chord);
    EXPECT_EQ(told, chord);
}

TEST_F(ShortcutListsTest, AreAllReadAnew) {
    lists->refresh();
    EXPECT_EQ(log.calls().size(), 2U);
}

} // namespace
} // namespace quorvane
