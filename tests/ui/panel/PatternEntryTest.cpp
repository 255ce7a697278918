// SPDX-License-Identifier: MIT
#include "PatternGuide.h"
#include "PopoverFixture.h"

#include <controls/Theme.h>
#include <panel/OutputPreview.h>
#include <time/DatePattern.h>

#include <algorithm>
#include <utility>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PatternEntryTest : public PopoverFixture {
protected:
    QLineEdit& pattern = openPattern();

    QLineEdit& openPattern() {
        model.setFormatPreset(DateFormatPreset::Custom);
        queue.run();
        return field(u"Custom format"_s);
    }

    void enter(const QString& text) {
        pattern.setFocus();
        pattern.selectAll();
        QTest::keyClicks(&pattern, text);
        queue.run();
    }

    QAbstractButton& help() { return button(u"Letters of a pattern"_s); }

    void openHelp() {
        help().setFocus();
        QTest::keyClick(&help(), Qt::Key_Space);
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), key, modifiers);
    }

    static QString focusedRow() {
        auto* row = QApplication::activePopupWidget()->focusWidget();
        auto* interface = QAccessible::queryAccessibleInterface(row);
        EXPECT_EQ(interface->role(), QAccessible::ListItem);
        return interface->text(QAccessible::Name) + u": "_s +
               interface->text(QAccessible::Description);
    }

    /// Where the first and the last pixel in the colour of what is refused stand.
    std::pair<int, int> marked() {
        pattern.clearFocus(); // no cursor
        const auto image = pattern.grab().toImage();
        const auto danger = Theme::of(view.palette()).danger;
        int first = image.width();
        int last = -1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel(image.pixel(x, y));
                if (pixel.red() > 150 && pixel.red() - pixel.blue() > 60) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
            }
        }
        EXPECT_GT(danger.red() - danger.blue(), 100);
        return {first, last};
    }

    /// The side of a character in the field, from its left edge.
    [[nodiscard]] double sideOf(int position) const {
        constexpr int padding = 10;
        return padding +
               QFontMetricsF(pattern.font()).horizontalAdvance(pattern.text().left(position));
    }
};

TEST_F(PatternEntryTest, LetterThatStandsForNothingIsMarkedWhereItStands) {
    enter(u"HH:mm n ss"_s);
    const auto [first, last] = marked();
    EXPECT_NEAR(first, sideOf(6), 1.5);
    EXPECT_NEAR(last + 1, sideOf(7), 1.5);
    EXPECT_EQ(preview().trimmed(), u"17:05"_s);
}

TEST_F(PatternEntryTest, MarkMovesWithTheTextWhereTheFieldScrolls) {
    enter(u"'a long text that needs more room than the field can have at once, and some more' n"_s);
    const auto [first, last] = marked();
    EXPECT_GT(first, pattern.width() - 80);
    EXPECT_GT(last, first);
    EXPECT_LT(last, pattern.width() - 28);
    pattern.setCursorPosition(0);
    EXPECT_EQ(marked().second, -1);
}

TEST_F(PatternEntryTest, NothingIsMarkedInAPatternThatHasAMeaning) {
    enter(u"EEEE 'no joint' HH:mm"_s);
    EXPECT_EQ(marked().second, -1);
    EXPECT_EQ(pattern.accessibleDescription(), QString());
    EXPECT_EQ(pattern.toolTip(), QString());
}

TEST_F(PatternEntryTest, UnknownLettersAreNamedToWhoDoesNotSeeTheMark) {
    enter(u"n HH j n"_s);
    const auto told =
        u"The text ends at “n”, which is no letter of a date. Words stand in quotes: 'at'"_s;
    EXPECT_EQ(pattern.accessibleDescription(), told);
    EXPECT_EQ(pattern.toolTip(), told);
    enter(u"HH"_s);
    EXPECT_EQ(pattern.accessibleDescription(), QString());
}

TEST_F(PatternEntryTest, PageShowsWhatEachPatternGivesNow) {
    openHelp();
    QStringList rows;
    for (const auto* row : QApplication::activePopupWidget()->findChildren<MenuRow*>())
        rows.append(row->text() + u": "_s + row->accessibleDescription());
    EXPECT_EQ(
        rows.join(u'\n').toStdString(),
        "24 hours: yyyy-MM-dd HH:mm, 2024-03-09 17:05\n"
        "12 hours: yyyy-MM-dd h:mm a, 2024-03-09 5:05 PM\n"
        "Long date: EEEE d MMMM yyyy, Saturday 9 March 2024\n"
        "ISO week: YYYY-'W'ww, 2024-W10\n"
        "Quarter: QQQ yyyy, Q1 2024\n"
        "Words in quotes: EEEE 'at' HH:mm zzz, Saturday at 17:05 EST\n"
        "An apostrophe: h 'o''clock' a, 5 o'clock PM\n"
        "File name: yyyyMMdd-HHmmss, 20240309-170500\n"
        "Year: yyyy, 2024\n"
        "Quarter: QQQ, Q1\n"
        "Month: MMMM, March\n"
        "Month, short: MMM, Mar\n"
        "Month, number: MM, 03\n"
        "Day: dd, 09\n"
        "Weekday: EEEE, Saturday\n"
        "Weekday, short: EEE, Sat\n"
        "Week: ww, 10\n"
        "Hour of 24: HH, 17\n"
        "Hour of 12: h, 5\n"
        "AM or PM: a, PM\n"
        "Minute: mm, 05\n"
        "Second: ss, 00\n"
        "Time zone: zzz, EST\n"
        "Offset: xxx, -05:00");
}

TEST_F(PatternEntryTest, ReadyPatternIsTakenByReturn) {
    enter(u"HH"_s);
    openHelp();
    EXPECT_EQ(focusedRow(), u"24 hours: yyyy-MM-dd HH:mm, 2024-03-09 17:05"_s);
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    queue.run();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(model.customFormatString(), u"YYYY-'W'ww"_s);
    EXPECT_EQ(preview(), u"2024-W10"_s);
    EXPECT_EQ(pattern.text(), u"YYYY-'W'ww"_s);
    EXPECT_TRUE(pattern.hasFocus());
    EXPECT_EQ(pattern.cursorPosition(), 10);
    QTest::keyClick(&pattern, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pattern.text(), u"HH"_s);
}

TEST_F(PatternEntryTest, LetterIsTakenByAClickAndStandsAtTheCursor) {
    enter(u"HH:"_s);
    pattern.setCursorPosition(0);
    openHelp();
    auto* row = widgetByRole(
        *QApplication::activePopupWidget(), QAccessible::ListItem, u"Weekday, short"_s);
    ASSERT_NE(row, nullptr);
    QTest::mouseClick(row, Qt::LeftButton);
    queue.run();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(model.customFormatString(), u"EEEHH:"_s);
    EXPECT_TRUE(pattern.hasFocus());
    EXPECT_EQ(pattern.cursorPosition(), 3);
}

TEST_F(PatternEntryTest, KeysGoBetweenTheListsAndEscapeClosesThePageAlone) {
    pattern.setFocus();
    QTest::keyClick(&pattern, Qt::Key_Tab);
    ASSERT_TRUE(help().hasFocus());
    QTest::keyClick(&help(), Qt::Key_Return);
    press(Qt::Key_Right);
    EXPECT_EQ(focusedRow(), u"Year: yyyy, 2024"_s);
    press(Qt::Key_End);
    EXPECT_EQ(focusedRow(), u"Offset: xxx, -05:00"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(focusedRow().startsWith(u"File name"_s));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_TRUE(focusedRow().startsWith(u"24 hours"_s));
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(help().hasFocus());
    EXPECT_EQ(model.customFormatString(), u"yyyy-MM-dd HH:mm zzz"_s);
}

TEST_F(PatternEntryTest, ListsOfThePageHaveNames) {
    openHelp();
    for (const auto& name : {u"Ready patterns"_s, u"Letters"_s})
        EXPECT_NE(
            widgetByRole(*QApplication::activePopupWidget(), QAccessible::List, name), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->accessibleName(), u"Letters of a pattern"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&help())->state().expanded, true);
}

TEST(PatternGuide, EveryHintHasAMeaning) {
    for (const auto& hints : {readyPatterns(), patternLetters()}) {
        ASSERT_FALSE(hints.empty());
        for (const auto& hint : hints) {
            EXPECT_TRUE(unknownPatternLetters(hint.pattern).empty()) << hint.pattern.toStdString();
            EXPECT_FALSE(hint.purpose.isEmpty());
        }
    }
}

} // namespace
} // namespace quorvane
