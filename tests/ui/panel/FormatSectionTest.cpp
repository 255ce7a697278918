// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class FormatSectionTest : public PopoverFixture {};

TEST_F(FormatSectionTest, PresetThatIsNoLongerOfferedGivesWayToTheFirst) {
    choose(u"Format"_s, u"Medium"_s);
    EXPECT_EQ(model.formatPreset(), DateFormatPreset::MediumForm);
    box(u"Date"_s).click(); // the time alone reads the same as Long and Medium
    queue.run();
    EXPECT_EQ(model.formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(popUp(u"Format"_s).accessibleValue(), u"Long"_s);
    EXPECT_FALSE(offered(u"Format"_s).contains(u"Medium"_s));
}

// 2024-05-09T22:05:00Z: in May, Long and Medium give one date.
TEST_F(FormatSectionTest, PresetThatTheListLeavesOutForADayKeepsItsNameOnTheFace) {
    choose(u"Format"_s, u"Medium"_s);
    model.setStartDate({1715292300});
    box(u"Time"_s).click();
    // As if the day were picked now: only the flags make another preset out of one.
    model.setFormatPreset(DateFormatPreset::MediumForm);
    queue.run();
    auto& format = popUp(u"Format"_s);
    EXPECT_EQ(preview(), u"May 9, 2024"_s);
    EXPECT_EQ(format.text(), u"Medium"_s);
    EXPECT_EQ(format.accessibleValue(), u"Medium"_s);
    QTest::mouseClick(&format, Qt::LeftButton);
    QStringList marked;
    for (const auto* row : QApplication::activePopupWidget()->findChildren<MenuRow*>()) {
        EXPECT_NE(row->text(), u"Medium"_s);
        if (row->isChecked())
            marked.append(row->text());
    }
    EXPECT_EQ(marked, QStringList{u"Long"_s});
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    model.setStartDate({1717970700}); // 2024-06-09T22:05:00Z
    queue.run();
    EXPECT_EQ(preview(), u"Jun 9, 2024"_s);
    EXPECT_EQ(format.text(), u"Medium"_s);
}

TEST_F(FormatSectionTest, OpenListOfFormatsThatNoLongerHoldsIsClosed) {
    auto& format = popUp(u"Format"_s);
    model.setIncludeTime(false);
    queue.run();
    QTest::mouseClick(&format, Qt::LeftButton);
    model.setStartDate({1710108300}); // the next day, of the same month
    queue.run();
    EXPECT_TRUE(format.isExpanded().value_or(false));
    model.setStartDate({1715292300}); // in May, of which Long and Medium give one text
    queue.run();
    EXPECT_FALSE(format.isExpanded().value_or(false));
}

TEST_F(FormatSectionTest, RowsOfTheFormatsSayWhatTheyGive) {
    QTest::mouseClick(&popUp(u"Format"_s), Qt::LeftButton);
    QStringList samples;
    for (const auto* row : QApplication::activePopupWidget()->findChildren<MenuRow*>())
        samples.append(row->text() + u": "_s + row->accessibleDescription());
    EXPECT_EQ(
        samples.join(u'\n').toStdString(),
        "Long: March 9, 2024 at 5:05 PM EST\n"
        "Medium: Mar 9, 2024, 5:05 PM EST\n"
        "Short: 3/9/24, 5:05 PM EST\n"
        "ISO 8601: 2024-03-09T17:05:00-05:00\n"
        "RFC 2822: Sat, 09 Mar 2024 17:05:00 -0500\n"
        "Day of Week: Saturday, March 9, 2024 at 5:05 PM EST\n"
        "Unix Timestamp: 1710021900\n"
        "Custom…: 2024-03-09 17:05 EST");
    EXPECT_EQ(
        QApplication::activePopupWidget()->findChild<MenuRow*>()->width(),
        popUp(u"Format"_s).width());
}

TEST_F(FormatSectionTest, LayoutIsNoChoiceWithoutATime) {
    button(u"GMT"_s).click();
    queue.run();
    EXPECT_TRUE(find<QWidget>(QAccessible::RadioButton, u"Lines"_s).isVisible());
    box(u"Time"_s).click();
    queue.run();
    EXPECT_FALSE(find<QWidget>(QAccessible::RadioButton, u"Lines"_s).isVisible());
}

TEST_F(FormatSectionTest, CustomPatternShowsOnlyForTheCustomPreset) {
    auto& pattern = field(u"Custom format"_s);
    EXPECT_FALSE(pattern.isVisible());
    choose(u"Format"_s, u"Custom…"_s);
    EXPECT_TRUE(pattern.isVisible());
    pattern.selectAll();
    QTest::keyClicks(&pattern, u"yyyy"_s);
    queue.run();
    EXPECT_EQ(preview(), u"2024"_s);
}

TEST_F(FormatSectionTest, PastedPatternShowsInTheOutputWhenItHasCome) {
    choose(u"Format"_s, u"Custom…"_s);
    auto& pattern = field(u"Custom format"_s);
    pattern.selectAll();
    QTest::keyClick(&pattern, Qt::Key_V, Qt::ControlModifier);
    clipboardOwner.answer(u"yyyy"_s);
    queue.run();
    EXPECT_EQ(preview(), u"2024"_s);
}

} // namespace
} // namespace quorvane
