// SPDX-License-Identifier: MIT
#include "TimeFollower.h"

#include "PresentationFixture.h"

#include <entry/CalendarDay.h>
#include <entry/DateField.h>
#include <entry/TimeField.h>

#include <QLabel>
#include <QTest>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TimeFollowerTest : public testing::Test {
protected:
    /// Clock and queue together.
    void passTime(Seconds span) {
        clock.set(clock.now() + span);
        queue.advance(span);
    }

    VirtualMainQueue queue;
    ZoneDatabase zones;
    FakeTimeChanges changes;
    FixedClock clock{Instant{1710021900}}; // 2024-03-09T22:05:00Z, 17:05 in New York
    FixedCurrentZone currentZone{*zones.zone(u"America/New_York"_s)};
    int reports = 0;
    TimeFollower follower{{changes, queue, clock, currentZone}, [this] {
                              ++reports;
                          }};
};

TEST_F(TimeFollowerTest, TellsAtEachMidnightOfTheUsersZone) {
    passTime(6h + 55min + -1s);
    EXPECT_EQ(reports, 0);
    passTime(1s);
    EXPECT_EQ(reports, 1);
    // The next day has 23 hours.
    passTime(23h + -1s);
    EXPECT_EQ(reports, 1);
    passTime(1s);
    EXPECT_EQ(reports, 2);
    passTime(24h);
    EXPECT_EQ(reports, 3);
}

TEST_F(TimeFollowerTest, ATimerThatEndsTooEarlyTellsNothingYet) {
    queue.advance(6h + 55min);
    EXPECT_EQ(reports, 0);
    passTime(6h + 55min);
    EXPECT_EQ(reports, 1);
}

TEST_F(TimeFollowerTest, AClockThatIsSetHasAnotherMidnight) {
    clock.set(clock.now() + 6h);
    changes.change();
    EXPECT_EQ(reports, 1);
    passTime(55min);
    EXPECT_EQ(reports, 2);
}

TEST_F(TimeFollowerTest, AnotherZoneHasAnotherMidnight) {
    currentZone.set(*zones.zone(u"Europe/London"_s));
    changes.change();
    EXPECT_EQ(reports, 1);
    passTime(1h + 55min);
    EXPECT_EQ(reports, 2);
}

class TimeShownTest : public PresentationFixture {
protected:
    [[nodiscard]] bool shows(const QString& text) const {
        const auto labels = panel()->findChildren<QLabel*>();
        return std::ranges::any_of(
            labels, [&](const QLabel* label) { return label->text() == text; });
    }

    /// The day that the open calendar marks as today; none where it marks none of its month.
    [[nodiscard]] static std::optional<CivilDay> today() {
        for (const auto* day : QApplication::activePopupWidget()->findChildren<CalendarDay*>()) {
            if (day->isVisible() && day->marks().isToday)
                return day->day();
        }
        return std::nullopt;
    }
};

TEST_F(TimeShownTest, AnotherZoneChangesWhatIsShownAndNoDate) {
    launchAs(PresentationMode::Window);
    ASSERT_TRUE(shows(u"(in local time EST)"_s));
    const auto start = delegate->model().startDate();
    currentZone.set(*zones.zone(u"America/Los_Angeles"_s));
    timeChanges->change();
    queue.run();
    EXPECT_TRUE(shows(u"(in local time PST)"_s));
    EXPECT_EQ(panel()->findChild<TimeField*>()->text(), u"02:05 PM"_s);
    EXPECT_EQ(delegate->model().startDate(), start);
    EXPECT_EQ(delegate->model().selectedTimeZones().front().identifier(), u"America/New_York"_s);
}

TEST_F(TimeShownTest, MidnightMovesTodayInAnOpenCalendar) {
    launchAs(PresentationMode::Window);
    QTest::mouseClick(panel()->findChild<DateField*>(), Qt::LeftButton);
    const CivilDay ninth(std::chrono::year(2024) / 3 / 9);
    EXPECT_EQ(today(), ninth);
    clock.set(clock.now() + 7h);
    queue.advance(7h);
    EXPECT_EQ(today(), ninth + std::chrono::days(1));
    EXPECT_EQ(panel()->findChild<DateField*>()->text(), u"Mar 9, 2024"_s);
}

} // namespace
} // namespace quorvane
