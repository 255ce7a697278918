// SPDX-License-Identifier: MIT
#include "TimePickerFixture.h"

#include <utility>

namespace quorvane {
namespace {

/// Hour and minute as a screen reader has them.
class NumberFieldAccessibleTest : public TimePickerFixture {
protected:
    static QAccessibleInterface& seen(QWidget& field) {
        return *QAccessible::queryAccessibleInterface(&field);
    }

    static QAccessibleValueInterface& value(QWidget& field) {
        return *seen(field).valueInterface();
    }

    static QAccessibleTextInterface& text(QWidget& field) { return *seen(field).textInterface(); }
};

TEST_F(NumberFieldAccessibleTest, NumbersHaveTheRangeOfTheClock) {
    openOn(9h + 15min);
    EXPECT_EQ(value(hour()).currentValue(), 9);
    EXPECT_EQ(value(hour()).minimumValue(), 1);
    EXPECT_EQ(value(hour()).maximumValue(), 12);
    EXPECT_EQ(value(minute()).currentValue(), 15);
    EXPECT_EQ(value(minute()).minimumValue(), 0);
    EXPECT_EQ(value(minute()).maximumValue(), 59);
    EXPECT_EQ(value(minute()).minimumStepSize(), 1);
}

TEST_F(NumberFieldAccessibleTest, NumberFollowsStepsAndTyping) {
    openOn(9h + 59min);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_EQ(value(minute()).currentValue(), 0);
    type(u"2"_s);
    EXPECT_EQ(value(minute()).currentValue(), 2);
    type(u"x"_s);
    EXPECT_FALSE(value(minute()).currentValue().isValid());
}

TEST_F(NumberFieldAccessibleTest, NumberThatIsSetIsTheTimes) {
    openOn(9h + 15min);
    value(minute()).setCurrentValue(42);
    EXPECT_EQ(timeOfDay(), 9h + 42min);
}

TEST_F(NumberFieldAccessibleTest, TextIsReadAndSelected) {
    openOn(9h + 15min);
    EXPECT_TRUE(stateOf(minute()).editable);
    EXPECT_EQ(seen(minute()).text(QAccessible::Value), u"15"_s);
    auto& minutes = text(minute());
    EXPECT_EQ(minutes.characterCount(), 2);
    EXPECT_EQ(minutes.text(1, 2), u"5"_s);
    EXPECT_EQ(minutes.selectionCount(), 0);
    minutes.setSelection(0, 1, 2);
    EXPECT_EQ(minute().selectedText(), u"5"_s);
    int start = 0;
    int end = 0;
    minutes.selection(0, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(1, 2));
    minutes.removeSelection(0);
    EXPECT_FALSE(minute().hasSelectedText());
    minutes.setCursorPosition(1);
    EXPECT_EQ(minutes.cursorPosition(), 1);
}

TEST_F(NumberFieldAccessibleTest, TextIsEdited) {
    openOn(9h + 15min);
    auto& minutes = *seen(minute()).editableTextInterface();
    minutes.replaceText(0, 1, u"4"_s);
    EXPECT_EQ(timeOfDay(), 9h + 45min);
    minutes.deleteText(1, 2);
    EXPECT_EQ(timeOfDay(), 9h + 4min);
    minutes.insertText(0, u"3"_s);
    EXPECT_EQ(timeOfDay(), 9h + 34min);
}

TEST_F(NumberFieldAccessibleTest, LettersStandWhereTheyAreSeen) {
    openOn(9h + 15min);
    auto& minutes = text(minute());
    const QRect field(minute().mapToGlobal(QPoint()), minute().size());
    const auto first = minutes.characterRect(0);
    const auto second = minutes.characterRect(1);
    EXPECT_TRUE(field.contains(first) && field.contains(second));
    EXPECT_EQ(second.left(), first.right() + 1);
    EXPECT_EQ(minutes.offsetAtPoint(second.center()), minutes.offsetAtPoint(first.center()) + 1);
    EXPECT_FALSE(minutes.characterRect(2).isValid());
}

} // namespace
} // namespace quorvane
