// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <entry/CalendarDay.h>

#include <algorithm>
#include <chrono>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

unsigned dayOfMonth(CivilDay day) {
    return static_cast<unsigned>(std::chrono::year_month_day(day).day());
}

class DateSectionTest : public PopoverFixture {
protected:
    /// The days that an open calendar refuses, of the month that it shows.
    std::vector<unsigned> refusedDays(const QString& chip) {
        const auto controls = view.findChildren<PressableControl*>();
        const auto found = std::ranges::find_if(controls, [&](const auto* control) {
            return control->isVisible() && control->accessibleDescription() == chip;
        });
        EXPECT_NE(found, controls.end()) << chip.toStdString();
        QTest::mouseClick(*found, Qt::LeftButton);
        std::vector<unsigned> refused;
        int shown = 0;
        for (const auto* day : QApplication::activePopupWidget()->findChildren<CalendarDay*>()) {
            shown += day->isVisible() ? 1 : 0;
            if (day->isVisible() && day->marks().isRefused)
                refused.push_back(dayOfMonth(day->day()));
        }
        EXPECT_EQ(shown, 31); // March
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        std::ranges::sort(refused);
        return refused;
    }
};

TEST_F(DateSectionTest, DateAndTimeAreNotBothTakenAway) {
    EXPECT_TRUE(box(u"Date"_s).isEnabled());
    EXPECT_TRUE(box(u"Time"_s).isEnabled());
    box(u"Date"_s).click();
    queue.run();
    EXPECT_TRUE(box(u"Date"_s).isEnabled());
    EXPECT_FALSE(box(u"Time"_s).isEnabled());
    box(u"Date"_s).click();
    queue.run();
    box(u"Time"_s).click();
    queue.run();
    EXPECT_FALSE(box(u"Date"_s).isEnabled());
    EXPECT_TRUE(box(u"Time"_s).isEnabled());
}

TEST_F(DateSectionTest, EndIsNotChosenBeforeTheDayOfTheStart) {
    box(u"to"_s).click();
    queue.run();
    // The start is on 9 March.
    EXPECT_EQ(refusedDays(u"End date"_s), (std::vector{1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U}));
}

TEST_F(DateSectionTest, StartIsChosenFreely) {
    box(u"to"_s).click();
    queue.run();
    EXPECT_EQ(refusedDays(u"Start date"_s), std::vector<unsigned>{});
}

TEST_F(DateSectionTest, EarliestEndMovesWithTheStart) {
    box(u"to"_s).click();
    model.setStartDate(Instant{1709337600}); // 2024-03-02T00:00:00Z, still 1 March in New York
    queue.run();
    EXPECT_EQ(refusedDays(u"End date"_s), std::vector<unsigned>{});
    model.setStartDate(Instant{1709416800}); // 2024-03-02T22:00:00Z
    queue.run();
    EXPECT_EQ(refusedDays(u"End date"_s), std::vector{1U});
}

} // namespace
} // namespace quorvane
