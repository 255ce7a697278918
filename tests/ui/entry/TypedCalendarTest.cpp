// SPDX-License-Identifier: MIT
#include "EntryFixture.h"

#include <controls/FocusRing.h>
#include <entry/DateField.h>
#include <support/HeardAnnouncements.h>

#include <QInputMethodEvent>
#include <QLabel>

#include <memory>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Dates that are typed over an open calendar.
class TypedCalendarTest : public EntryFixture {
protected:
    std::optional<Instant> minimum;
    std::unique_ptr<DateField> chip;
    FocusRing ring{&window};

    void open(const char* locale = "en_US") {
        chip = std::make_unique<DateField>(
            binding(), [this] { return minimum; }, dependencies(locale), &window);
        chip->move(20, 20);
        chip->show();
        showWindow();
        chip->setFocus();
        press(Qt::Key_Space);
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    }

    static bool isOpen() { return QApplication::activePopupWidget() != nullptr; }

    /// Each letter where the focus is by then.
    static void type(const QString& text) {
        for (const auto letter : text)
            QTest::keyClicks(QApplication::focusWidget(), letter);
    }

    QLineEdit& line() { return field(u"Type a date"_s); }

    /// Whether the line's frame says that its text is not taken.
    bool isRefused() {
        const auto image = line().grab().toImage();
        return image.pixel(image.width() / 2, 0) == Theme::of(window.palette()).danger.rgb();
    }

    QString description() {
        return QAccessible::queryAccessibleInterface(&line())->text(QAccessible::Description);
    }

    static QString focused() {
        return QAccessible::queryAccessibleInterface(QApplication::focusWidget())
            ->text(QAccessible::Name);
    }

    QString title() { return QApplication::activePopupWidget()->findChild<QLabel*>()->text(); }
};

TEST_F(TypedCalendarTest, LineOpensAboveTheDaysWithTheFirstLetter) {
    open();
    EXPECT_FALSE(line().isVisible());
    const int height = QApplication::activePopupWidget()->height();
    type(u"t"_s);
    EXPECT_TRUE(line().isVisible());
    EXPECT_TRUE(line().hasFocus());
    EXPECT_EQ(line().text(), u"t"_s);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(QApplication::activePopupWidget()->height(), height + 34);
    auto& day = button(u"Friday, March 1, 2024"_s);
    EXPECT_LT(line().mapToGlobal(QPoint(0, line().height())).y(), day.mapToGlobal(QPoint()).y());
}

TEST_F(TypedCalendarTest, ReturnTakesAWordAndKeepsTheTimeOfDay) {
    open();
    type(u"tomorrow"_s);
    EXPECT_TRUE(writes.empty());
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen());
    // 2026-11-21, 17:05 in New York.
    EXPECT_EQ(writes, std::vector{Instant{1795298700}});
    EXPECT_EQ(chip->text(), u"Nov 21, 2026"_s);
    EXPECT_TRUE(chip->hasFocus());
}

TEST_F(TypedCalendarTest, DistanceCountsFromTheFieldsDate) {
    open();
    type(u"+3"_s);
    press(Qt::Key_Enter);
    EXPECT_EQ(writes, std::vector{Instant{1710277500}}); // 2024-03-12, 17:05
}

TEST_F(TypedCalendarTest, DateTimeSetsBoth) {
    open();
    type(u"2024-03-10 09:30"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(writes, std::vector{Instant{1710077400}});
}

TEST_F(TypedCalendarTest, DateTimeWithAnOffsetIsTheSameEverywhere) {
    open();
    type(u"2024-04-01T03:00Z"_s); // still March in New York
    EXPECT_EQ(title(), u"March 2024"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(writes, std::vector{Instant{1711940400}});
}

TEST_F(TypedCalendarTest, DaysFollowWhatIsTyped) {
    open();
    type(u"tomorro"_s);
    EXPECT_EQ(title(), u"March 2024"_s);
    type(u"w"_s);
    EXPECT_EQ(title(), u"November 2026"_s);
    EXPECT_EQ(description(), u"Saturday, November 21, 2026"_s);
    auto& day = button(u"Saturday, November 21, 2026"_s);
    // The frame of the disc, which ends two points within the cell.
    EXPECT_EQ(day.grab().toImage().pixel(16, 3), Theme::of(window.palette()).accentText.rgb());
    EXPECT_TRUE(line().hasFocus());
    EXPECT_TRUE(writes.empty());
}

TEST_F(TypedCalendarTest, NonsenseIsFramedAtOnceAndChangesNothing) {
    open();
    type(u"xy"_s);
    EXPECT_TRUE(isRefused());
    EXPECT_EQ(description(), u"Not a date"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(writes.empty());
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"+"_s);
    EXPECT_FALSE(isRefused());
    EXPECT_EQ(description(), QString());
}

TEST_F(TypedCalendarTest, WhatIsUnderstoodAndWhatIsRefusedIsAnnounced) {
    open();
    HeardAnnouncements heard(window);
    type(u"tomo"_s);
    EXPECT_EQ(heard.take(), QStringList());
    press(Qt::Key_Return);
    EXPECT_EQ(heard.take(), QStringList{u"Not a date"_s});
    type(u"rrow"_s);
    EXPECT_EQ(heard.take(), QStringList{u"Saturday, November 21, 2026"_s});
    press(Qt::Key_Return);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(TypedCalendarTest, UnfinishedTextIsFramedWhenReturnComes) {
    open();
    type(u"tomo"_s);
    EXPECT_FALSE(isRefused());
    press(Qt::Key_Return);
    EXPECT_TRUE(isRefused());
    EXPECT_TRUE(isOpen());
    type(u"rrow"_s);
    EXPECT_FALSE(isRefused());
}

TEST_F(TypedCalendarTest, DayBeforeTheMinimumIsRefusedAsNonsenseIs) {
    minimum = date;
    open();
    type(u"2024-03-08"_s);
    EXPECT_TRUE(isRefused());
    EXPECT_EQ(description(), u"Before Mar 9, 2024"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(writes.empty());
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"-1"_s); // may still become -12, and is refused when it does not
    EXPECT_FALSE(isRefused());
    press(Qt::Key_Return);
    EXPECT_TRUE(isRefused());
    EXPECT_TRUE(writes.empty());
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"3/9/2024 1:00 am"_s); // earlier on the minimum's day
    EXPECT_FALSE(isRefused());
    press(Qt::Key_Return);
    EXPECT_EQ(writes.size(), 1U);
}

TEST_F(TypedCalendarTest, EscapeClosesTheLineAndThenTheCalendar) {
    open();
    type(u"tomorrow"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(line().isVisible());
    EXPECT_EQ(focused(), u"Saturday, March 9, 2024"_s);
    EXPECT_EQ(title(), u"March 2024"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(writes.empty());
}

TEST_F(TypedCalendarTest, OpenLineHasItsOwnSpaceAndKeysToTheSides) {
    open();
    type(u"next wek"_s);
    press(Qt::Key_Left);
    type(u"e"_s);
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    EXPECT_EQ(line().cursorPosition(), 1);
    press(Qt::Key_End);
    EXPECT_EQ(line().text(), u"next week"_s);
    EXPECT_EQ(line().cursorPosition(), 9);
    press(Qt::Key_Return);
    EXPECT_EQ(chip->text(), u"Nov 27, 2026"_s);
}

TEST_F(TypedCalendarTest, KeysUpAndDownGoOnFromTheTypedDayAndLeaveTheLine) {
    for (const auto& [key, day] :
         {std::pair(Qt::Key_Down, u"Tuesday, March 19, 2024"_s),
          {Qt::Key_Up, u"Tuesday, March 5, 2024"_s},
          {Qt::Key_PageDown, u"Friday, April 12, 2024"_s},
          {Qt::Key_PageUp, u"Monday, February 12, 2024"_s}}) {
        date = {1710021900};
        open();
        type(u"+3"_s);
        press(key);
        EXPECT_EQ(focused(), day);
        EXPECT_FALSE(line().isVisible());
        EXPECT_TRUE(writes.empty());
        press(Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(TypedCalendarTest, TextThatIsLeftUnfinishedIsFramedAndReplacedByTheDate) {
    open();
    type(u"tomo"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), u"Saturday, March 16, 2024"_s);
    EXPECT_TRUE(line().isVisible());
    EXPECT_EQ(line().text(), u"Mar 9, 2024"_s);
    EXPECT_TRUE(isRefused());
    // A new text begins anew.
    type(u"+3"_s);
    EXPECT_EQ(line().text(), u"+3"_s);
    EXPECT_FALSE(isRefused());
}

TEST_F(TypedCalendarTest, PressOnADayMovesNothingUnderThePointer) {
    open();
    type(u"tomo"_s);
    QCoreApplication::sendPostedEvents();
    auto& day = button(u"Friday, March 15, 2024"_s);
    const auto place = day.mapToGlobal(QPoint());
    QTest::mousePress(&day, Qt::LeftButton);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(day.mapToGlobal(QPoint()), place);
    QTest::mouseRelease(&day, Qt::LeftButton);
    EXPECT_EQ(writes, std::vector{Instant{1710536700}});
    EXPECT_FALSE(line().isVisible());
}

TEST_F(TypedCalendarTest, ReturnOnAnEmptyLineClosesIt) {
    open();
    type(u"t"_s);
    press(Qt::Key_Backspace);
    EXPECT_TRUE(line().isVisible());
    EXPECT_FALSE(isRefused());
    press(Qt::Key_Return);
    EXPECT_FALSE(line().isVisible());
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(writes.empty());
}

TEST_F(TypedCalendarTest, DateIsPasted) {
    open();
    press(Qt::Key_V, Qt::ControlModifier);
    clipboardOwner.answer(u"2024-03-12"_s);
    EXPECT_EQ(line().text(), u"2024-03-12"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(writes, std::vector{Instant{1710277500}});
}

TEST_F(TypedCalendarTest, InputMethodComposesInTheLine) {
    open("ja_JP");
    const auto compose = [](const QString& preedit, const QString& commit) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    compose(u"あ"_s, {});
    EXPECT_TRUE(line().isVisible());
    EXPECT_EQ(line().text(), QString());
    // A change of the focus would end the composition.
    EXPECT_FALSE(line().hasFocus());
    compose(u"あし"_s, {});
    compose({}, u"明日"_s);
    EXPECT_TRUE(line().hasFocus());
    EXPECT_EQ(line().text(), u"明日"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(writes, std::vector{Instant{1795298700}});
}

TEST_F(TypedCalendarTest, InputMethodIsToldOfTheLine) {
    open();
    auto& day = *QApplication::focusWidget();
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImCursorRectangle);
    QCoreApplication::sendEvent(&day, &query);
    EXPECT_TRUE(query.value(Qt::ImEnabled).toBool());
    type(u"to"_s);
    QCoreApplication::sendPostedEvents();
    QInputMethodQueryEvent later(Qt::ImCursorRectangle);
    QCoreApplication::sendEvent(&day, &later);
    const auto caret = later.value(Qt::ImCursorRectangle).toRectF();
    const QRectF place(day.mapFromGlobal(line().mapToGlobal(QPoint())), line().size());
    EXPECT_TRUE(place.contains(caret.center()));
}

TEST_F(TypedCalendarTest, DateFollowsTheLocale) {
    open("de_DE");
    type(u"3.4.24"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(chip->text(), u"3. Apr. 2024"_s);
}

} // namespace
} // namespace quorvane
