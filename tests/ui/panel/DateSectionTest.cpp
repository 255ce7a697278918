// SPDX-License-Identifier: MIT
#include "DateSection.h"

#include "PopoverFixture.h"

#include <controls/WrappedText.h>
#include <entry/CalendarDay.h>

#include <QLayout>

#include <algorithm>
#include <chrono>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

unsigned dayOfMonth(CivilDay day) {
    return static_cast<unsigned>(std::chrono::year_month_day(day).day());
}

class DateSectionTest : public PopoverFixture {
protected:
    /// The caption beside "to".
    WrappedText& length() { return *view.findChild<DateSection*>()->findChild<WrappedText*>(); }

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

TEST_F(DateSectionTest, NowStandsThereWhileADateIsTheUsers) {
    auto& now = button(u"Now"_s);
    EXPECT_FALSE(now.isVisible());
    model.setEndDate(model.endDate() + 1min);
    queue.run();
    EXPECT_TRUE(now.isVisible());
    EXPECT_GT(now.x(), view.findChild<TimeField*>()->geometry().right());
    clock.set(clock.now() + 2h);
    now.setFocus();
    now.click();
    queue.run();
    EXPECT_FALSE(now.isVisible());
    EXPECT_TRUE(view.findChild<DateField*>()->hasFocus());
    EXPECT_EQ(model.startDate(), clock.now());
    EXPECT_EQ(model.endDate(), clock.now() + 1h + 1min);
}

TEST_F(DateSectionTest, NowHasAKeyThatIsThePopoversOwnWhileOneIsOpen) {
    model.setStartDate(model.startDate() + -24h);
    queue.run();
    clock.set(clock.now() + 2h);
    auto* time = view.findChild<TimeField*>();
    QTest::mouseClick(time, Qt::LeftButton);
    auto* popover = QApplication::activePopupWidget();
    QTest::keyClick(popover->windowHandle(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(model.startDate(), clock.now() + -24h);
    QTest::keyClick(popover->windowHandle(), Qt::Key_Escape);
    QTest::keyClick(view.windowHandle(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(model.startDate(), clock.now());
    EXPECT_FALSE(model.hasEnteredDate());
}

TEST_F(DateSectionTest, DatesEnteredByTheirControlsAreTheUsers) {
    auto* time = view.findChild<TimeField*>();
    clock.set(clock.now() + 30s);
    model.renewDates();
    // Opening it drops the seconds.
    QTest::mouseClick(time, Qt::LeftButton);
    EXPECT_EQ(model.startDate(), clock.now() + -30s);
    EXPECT_FALSE(model.hasEnteredDate());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTest::keyClick(time, Qt::Key_Up);
    EXPECT_EQ(model.startDate(), clock.now() + 30s);
    EXPECT_TRUE(model.hasEnteredDate());
}

TEST_F(DateSectionTest, ToStandsAtTheBeginningOfItsRow) {
    const auto left = [this](QWidget& widget) {
        return widget.mapTo(&view, QPoint()).x();
    };
    const int column = left(*view.findChild<DateField*>());
    EXPECT_NEAR(left(box(u"to"_s)), column, 4);
    box(u"to"_s).click();
    queue.run();
    view.layout()->activate();
    EXPECT_NEAR(left(box(u"to"_s)), column, 4);
    EXPECT_LT(left(length()), column + 60);
}

TEST_F(DateSectionTest, ARangeTellsItsLength) {
    EXPECT_FALSE(length().isVisible());
    box(u"to"_s).click();
    queue.run();
    EXPECT_TRUE(length().isVisible());
    EXPECT_EQ(length().text(), u"1 h"_s);
    model.setEndDate(model.startDate() + -2h);
    queue.run();
    EXPECT_EQ(length().text(), u"\u22122 h"_s);
    EXPECT_EQ(length().accessibleName(), u"Ends 2 hours before it begins"_s);
    EXPECT_EQ(box(u"to"_s).accessibleDescription(), u"Ends 2 hours before it begins"_s);
    // New York's clocks are put forward on 10 March.
    model.setEndDate(model.startDate() + 75h);
    queue.run();
    EXPECT_EQ(length().text(), u"3 d 4 h"_s);
    box(u"Time"_s).click();
    queue.run();
    EXPECT_EQ(length().text(), u"3 d"_s);
    box(u"to"_s).click();
    queue.run();
    EXPECT_FALSE(length().isVisible());
    EXPECT_EQ(box(u"to"_s).accessibleDescription(), QString());
}

} // namespace
} // namespace quorvane
