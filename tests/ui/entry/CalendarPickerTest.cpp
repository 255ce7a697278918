// SPDX-License-Identifier: MIT
#include "EntryFixture.h"

#include <controls/FocusRing.h>
#include <entry/CalendarPicker.h>
#include <entry/DateField.h>

#include <QLabel>

#include <functional>
#include <memory>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class CalendarPickerTest : public EntryFixture {
protected:
    std::optional<Instant> minimum;
    std::unique_ptr<DateField> chip;

    void open(const char* locale = "en_US") {
        open([this] { clickOn(*chip); }, locale);
    }

    void open(const std::function<void()>& opening, const char* locale = "en_US") {
        chip = std::make_unique<DateField>(
            binding(), [this] { return minimum; }, dependencies(locale), &window);
        chip->move(20, 20);
        chip->show();
        showWindow();
        opening();
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    }

    /// Whether the ring is drawn above and below the day's disc.
    bool hasRing(const QString& text) {
        auto* popover = QApplication::activePopupWidget();
        const auto image = popover->grab().toImage();
        const auto cell = QRect(day(text).mapTo(popover, QPoint()), day(text).size());
        const auto ring = Theme::of(popover->palette()).accentText.rgb();
        // The disc ends two points within the cell; the ring is two wide, one away from it.
        return image.pixel(cell.center().x(), cell.top()) == ring &&
               image.pixel(cell.center().x(), cell.bottom()) == ring;
    }

    QAbstractButton& day(const QString& text) { return button(text); }

    bool has(const QString& text) {
        auto* widget = widgetByRole(window, QAccessible::Button, text);
        return widget != nullptr && widget->isVisible();
    }

    bool isSelected(const QString& text) { return stateOf(day(text)).selected; }

    bool isRefused(const QString& text) { return stateOf(day(text)).disabled; }

    /// The name of what has the keyboard's focus.
    static QString focused() {
        return QAccessible::queryAccessibleInterface(QApplication::focusWidget())
            ->text(QAccessible::Name);
    }

    QString title() { return window.findChild<QLabel*>()->text(); }
};

TEST_F(CalendarPickerTest, ShowsTheMonthOfTheDateWithItsDaySelected) {
    open();
    EXPECT_EQ(title(), u"March 2024"_s);
    EXPECT_TRUE(isSelected(u"Saturday, March 9, 2024"_s));
    EXPECT_FALSE(isSelected(u"Friday, March 8, 2024"_s));
    EXPECT_FALSE(has(u"Thursday, February 29, 2024"_s));
    EXPECT_FALSE(has(u"Monday, April 1, 2024"_s));
    EXPECT_EQ(focused(), u"Saturday, March 9, 2024"_s);
}

TEST_F(CalendarPickerTest, PickedDayKeepsTheTimeOfDayToTheFraction) {
    date = date + 12.25s;
    open();
    clickOn(day(u"Tuesday, March 12, 2024"_s));
    // 17:05:12.25 EDT, 21:05Z.
    EXPECT_EQ(writes, std::vector{Instant{1710277512.25}});
    EXPECT_TRUE(isSelected(u"Tuesday, March 12, 2024"_s));
    EXPECT_FALSE(isSelected(u"Saturday, March 9, 2024"_s));
    EXPECT_EQ(chip->text(), u"Mar 12, 2024"_s);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}

// It is 13:00 of Friday, November 20, 2026.
TEST_F(CalendarPickerTest, TodayTakesTheDayAndLeavesTheTime) {
    date = date + 12.25s;
    open();
    clickOn(button(u"Today"_s));
    // 17:05:12.25 in New York, now without daylight time.
    EXPECT_EQ(date, Instant{1795212312.25});
    EXPECT_EQ(title(), u"November 2026"_s);
    EXPECT_TRUE(isSelected(u"Friday, November 20, 2026"_s));
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}

TEST_F(CalendarPickerTest, TodayIsReachedByTabAndRefusedBeforeTheMinimum) {
    open();
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Today"_s);
    minimum = clock.now() + 24h;
    chip->refresh();
    EXPECT_FALSE(button(u"Today"_s).isEnabled());
    minimum = clock.now() + 10h;
    chip->refresh();
    EXPECT_TRUE(button(u"Today"_s).isEnabled());
    const auto before = date;
    minimum = clock.now() + 24h;
    button(u"Today"_s).click();
    EXPECT_EQ(date, before);
}

TEST_F(CalendarPickerTest, DaysFollowTheCurrentZone) {
    currentZone.set(*zones.zone(u"Asia/Tokyo"_s)); // 2024-03-10 07:05 there
    open();
    EXPECT_TRUE(isSelected(u"Sunday, March 10, 2024"_s));
    clickOn(day(u"Friday, March 1, 2024"_s));
    EXPECT_EQ(date, Instant{1709244300});
}

TEST_F(CalendarPickerTest, TurningPagesWritesNothing) {
    open();
    button(u"Next month"_s).click();
    EXPECT_EQ(title(), u"April 2024"_s);
    EXPECT_TRUE(has(u"Tuesday, April 30, 2024"_s));
    EXPECT_FALSE(has(u"Sunday, March 31, 2024"_s));
    button(u"Previous month"_s).click();
    button(u"Previous month"_s).click();
    EXPECT_EQ(title(), u"February 2024"_s);
    EXPECT_TRUE(writes.empty());
    EXPECT_FALSE(isSelected(u"Friday, February 9, 2024"_s));
}

TEST_F(CalendarPickerTest, ArrowsOfThePageStayWhereTheyAre) {
    open();
    const auto place = button(u"Next month"_s).mapToGlobal(QPoint());
    auto* popover = QApplication::activePopupWidget();
    const int sixWeeks = popover->height(); // March 2024 touches six
    button(u"Previous month"_s).click();    // February touches five
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(button(u"Next month"_s).mapToGlobal(QPoint()), place);
    EXPECT_EQ(popover->height(), sixWeeks - 32);
}

TEST_F(CalendarPickerTest, ArrowKeysWalkAcrossTheEdgesOfMonths) {
    open();
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), u"Friday, March 8, 2024"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Friday, March 1, 2024"_s);
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), u"Thursday, February 29, 2024"_s);
    EXPECT_EQ(title(), u"February 2024"_s);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), u"Friday, March 8, 2024"_s);
    EXPECT_TRUE(writes.empty());
}

TEST_F(CalendarPickerTest, CursorShowsAtOnceWhenOpenedByKeyboard) {
    const FocusRing ring(&window);
    open([this] {
        chip->setFocus(Qt::MouseFocusReason);
        press(Qt::Key_Space);
    });
    EXPECT_TRUE(hasRing(u"Saturday, March 9, 2024"_s));
    press(Qt::Key_Left);
    EXPECT_TRUE(hasRing(u"Friday, March 8, 2024"_s));
    EXPECT_FALSE(hasRing(u"Saturday, March 9, 2024"_s));
}

TEST_F(CalendarPickerTest, CursorShowsFromTheFirstArrowWhenOpenedByTheMouse) {
    const FocusRing ring(&window);
    open();
    EXPECT_FALSE(hasRing(u"Saturday, March 9, 2024"_s));
    press(Qt::Key_Down);
    EXPECT_TRUE(hasRing(u"Saturday, March 16, 2024"_s));
    press(Qt::Key_Escape);
    EXPECT_TRUE(ring.isVisible());
}

TEST_F(CalendarPickerTest, PageKeysWalkByMonthsAndHomeAndEndAlongTheWeek) {
    date = date + 22 * 24h; // March 31
    open();
    press(Qt::Key_PageUp);
    EXPECT_EQ(focused(), u"Thursday, February 29, 2024"_s);
    press(Qt::Key_Home);
    EXPECT_EQ(focused(), u"Sunday, February 25, 2024"_s);
    press(Qt::Key_End);
    EXPECT_EQ(focused(), u"Saturday, March 2, 2024"_s);
    press(Qt::Key_PageDown);
    EXPECT_EQ(focused(), u"Tuesday, April 2, 2024"_s);
    EXPECT_TRUE(writes.empty());
}

TEST_F(CalendarPickerTest, CursorMovesToAnotherControlEvenIfItsPlaceIsTheSame) {
    open();
    const QPointer before = QApplication::focusWidget();
    press(Qt::Key_PageUp);
    EXPECT_EQ(focused(), u"Friday, February 9, 2024"_s);
    EXPECT_NE(QApplication::focusWidget(), before);
}

TEST_F(CalendarPickerTest, ShiftAndPageKeysWalkByYears) {
    date = {1709244300}; // 2024-02-29
    open();
    press(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(focused(), u"Friday, February 28, 2025"_s);
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_EQ(focused(), u"Tuesday, February 28, 2023"_s);
    EXPECT_EQ(title(), u"February 2023"_s);
    EXPECT_TRUE(writes.empty());
}

TEST_F(CalendarPickerTest, SpacePicksTheDayAndReturnTakesItAndCloses) {
    open();
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    EXPECT_TRUE(isSelected(u"Sunday, March 10, 2024"_s));
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(chip->hasFocus());
    EXPECT_EQ(chip->text(), u"Mar 11, 2024"_s);
    EXPECT_EQ(writes.size(), 2U);
}

TEST_F(CalendarPickerTest, ArrowKeysGoWhereTheyPointWhenWritingRunsToTheLeft) {
    window.setLayoutDirection(Qt::RightToLeft);
    open();
    EXPECT_GT(
        day(u"Friday, March 8, 2024"_s).mapToGlobal(QPoint()).x(),
        day(u"Saturday, March 9, 2024"_s).mapToGlobal(QPoint()).x());
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), u"Friday, March 8, 2024"_s);
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), u"Saturday, March 9, 2024"_s);
}

TEST_F(CalendarPickerTest, DaysBeforeTheMinimumAreRefused) {
    minimum = date + -6h; // earlier on the same day
    open();
    EXPECT_TRUE(isRefused(u"Friday, March 8, 2024"_s));
    EXPECT_FALSE(isRefused(u"Saturday, March 9, 2024"_s));
    clickOn(day(u"Friday, March 8, 2024"_s));
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    EXPECT_EQ(focused(), u"Friday, March 8, 2024"_s);
    EXPECT_TRUE(writes.empty());
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(&day(u"Friday, March 8, 2024"_s))
                     ->actionInterface()
                     ->actionNames()
                     .contains(QAccessibleActionInterface::pressAction()));
}

TEST_F(CalendarPickerTest, DayOfTheMinimumMayBeChosenAtAnyTimeOfDay) {
    minimum = date + 6h + 5min; // 23:10 on the same day
    date = date + 24h;
    open();
    clickOn(day(u"Saturday, March 9, 2024"_s));
    EXPECT_EQ(date, Instant{1710025500});
}

TEST_F(CalendarPickerTest, MinimumIsFollowedWhileTheCalendarIsOpen) {
    open();
    EXPECT_FALSE(isRefused(u"Friday, March 8, 2024"_s));
    minimum = date;
    chip->refresh();
    EXPECT_TRUE(isRefused(u"Friday, March 8, 2024"_s));
    minimum = std::nullopt;
    chip->refresh();
    EXPECT_FALSE(isRefused(u"Friday, March 8, 2024"_s));
    minimum = date; // and no refresh
    clickOn(day(u"Friday, March 8, 2024"_s));
    EXPECT_TRUE(writes.empty());
}

TEST_F(CalendarPickerTest, DateBeforeTheMinimumIsShownAndItsMonthRefused) {
    minimum = date + 40 * 24h;
    open();
    EXPECT_TRUE(isSelected(u"Saturday, March 9, 2024"_s));
    EXPECT_TRUE(isRefused(u"Sunday, March 31, 2024"_s));
}

TEST_F(CalendarPickerTest, ChangeFromElsewhereTurnsThePageButOthersDoNot) {
    open();
    button(u"Next month"_s).click();
    date = date + 1min;
    chip->refresh();
    EXPECT_EQ(title(), u"April 2024"_s);
    date = date + 24h;
    chip->refresh();
    EXPECT_EQ(title(), u"March 2024"_s);
    EXPECT_TRUE(isSelected(u"Sunday, March 10, 2024"_s));
}

TEST_F(CalendarPickerTest, TodayAndTheChosenDayStandOut) {
    date = clock.now() + 96h;
    open();
    const auto theme = Theme::of(window.palette());
    const auto colorAt = [&](const QString& text, QPoint point) {
        return day(text).grab().toImage().pixel(point);
    };
    constexpr QPoint inDisc(7, 10);
    constexpr QPoint onDot(16, 25); // three pixels, three above the disc's lower edge
    EXPECT_EQ(colorAt(u"Tuesday, November 24, 2026"_s, inDisc), theme.accent.rgb());
    EXPECT_NE(colorAt(u"Wednesday, November 25, 2026"_s, inDisc), theme.accent.rgb());
    EXPECT_EQ(colorAt(u"Friday, November 20, 2026"_s, onDot), theme.accentText.rgb());
    EXPECT_NE(colorAt(u"Saturday, November 21, 2026"_s, onDot), theme.accentText.rgb());
    clock.set(clock.now() + 24h);
    chip->refresh();
    EXPECT_EQ(colorAt(u"Saturday, November 21, 2026"_s, onDot), theme.accentText.rgb());
}

TEST_F(CalendarPickerTest, FollowsTheLocalesCalendar) {
    date = {1774094400}; // 2026-03-21T12:00:00Z, the first day of 1405
    open("fa_IR");
    EXPECT_EQ(title(), u"۱۴۰۵ فروردین"_s);
    EXPECT_EQ(day(u"۱۴۰۵ فروردین ۱, شنبه"_s).text(), u"۱"_s);
    press(Qt::Key_PageDown);
    press(Qt::Key_Return);
    EXPECT_EQ(date, Instant{1776772800}); // 2026-04-21, 1 Ordibehesht, still daylight time
}

TEST_F(CalendarPickerTest, LongMonthFollowsAShortOne) {
    date = {1707501600}; // 2024-02-09
    open();
    press(Qt::Key_PageDown);
    EXPECT_TRUE(has(u"Sunday, March 31, 2024"_s));
    clickOn(day(u"Sunday, March 31, 2024"_s));
    press(Qt::Key_PageUp);
    EXPECT_EQ(focused(), u"Thursday, February 29, 2024"_s);
    EXPECT_FALSE(has(u"Sunday, March 31, 2024"_s));
}

} // namespace
} // namespace quorvane
