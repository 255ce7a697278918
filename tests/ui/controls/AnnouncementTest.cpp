// SPDX-License-Identifier: MIT
#include <controls/Announcement.h>
#include <controls/PausedAnnouncement.h>
#include <support/ControlWindow.h>
#include <support/HeardAnnouncements.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class AnnouncementTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    ControlWindow window;
    QWidget& speaker = window.add(new QWidget);
    PausedAnnouncement paused{queue, speaker};
    HeardAnnouncements heard{window};

    AnnouncementTest() { EXPECT_TRUE(window.open()); }
};

TEST_F(AnnouncementTest, IsHeardOnceEachTimeAlsoWithTheSameText) {
    announce(speaker, u"Copied"_s);
    EXPECT_EQ(heard.take(), QStringList{u"Copied"_s});
    announce(speaker, u"Copied"_s);
    EXPECT_EQ(heard.take(), QStringList{u"Copied"_s});
    announce(speaker, {});
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(AnnouncementTest, IsHeardFromAHiddenWindow) {
    window.hide();
    announce(speaker, u"Copied instead"_s);
    EXPECT_EQ(heard.take(), QStringList{u"Copied instead"_s});
}

TEST_F(AnnouncementTest, OfManyChangesOnlyTheLastIsHeardAfterAPause) {
    for (const auto& text : {u"1"_s, u"12"_s, u"123"_s}) {
        paused.announceSoon(text);
        queue.advance(999ms);
    }
    EXPECT_EQ(heard.take(), QStringList());
    queue.advance(1ms);
    EXPECT_EQ(heard.take(), QStringList{u"123"_s});
    queue.advance(1h);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(AnnouncementTest, NothingIsHeardOfWhatHasGoneMeanwhile) {
    paused.announceSoon(u"1"_s);
    window.hide();
    queue.advance(1s);
    window.show();
    paused.announceSoon(u"2"_s);
    paused.drop();
    queue.advance(1s);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(AnnouncementTest, OfAPopoverBelongsToTheWindowThatOpenedIt) {
    QWidget popover(&speaker, Qt::Popup);
    announce(popover, u"Today"_s);
    EXPECT_EQ(heard.take(), QStringList{u"Today"_s});
}

TEST_F(AnnouncementTest, IsANotificationOfTheWindow) {
    announce(speaker, u"Copied"_s);
    auto* read = QAccessible::queryAccessibleInterface(&Announcer::of(speaker));
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->role(), QAccessible::Notification);
    EXPECT_EQ(read->text(QAccessible::Name), u"Copied"_s);
    EXPECT_EQ(read->parent(), &accessible(window));
}

} // namespace
} // namespace quorvane
