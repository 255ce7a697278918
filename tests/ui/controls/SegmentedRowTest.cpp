// SPDX-License-Identifier: MIT
#include "SegmentButton.h"

#include <controls/Choice.h>
#include <controls/MacSegmentedControl.h>
#include <controls/SegmentedChip.h>
#include <support/ControlWindow.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

template <typename Control>
class SegmentedRowTest : public testing::Test {
protected:
    ControlWindow window;
    Control& row = window.add(new Control);
    int selection = 20;
    int writes = 0;
    Choice<int> choice{
        row,
        {10, 20, 30},
        [](int item) { return u"Item %1"_s.arg(item); },
        {[this] { return selection; },
         [this](int item) {
             selection = item;
             ++writes;
         }}};

    SegmentedRowTest() {
        window.resize(400, 100);
        EXPECT_TRUE(window.open());
    }

    [[nodiscard]] QList<SegmentButton*> segments() const {
        return row.template findChildren<SegmentButton*>();
    }

    [[nodiscard]] QWidget* focused() const { return window.focusWidget(); }
};

using Controls = testing::Types<SegmentedChip, MacSegmentedControl>;
TYPED_TEST_SUITE(SegmentedRowTest, Controls);

TYPED_TEST(SegmentedRowTest, ShowsTitlesAndSelection) {
    EXPECT_EQ(this->row.titles(), (QStringList{u"Item 10"_s, u"Item 20"_s, u"Item 30"_s}));
    EXPECT_EQ(this->row.selectedIndex(), 1);
    EXPECT_EQ(this->writes, 0);
}

TYPED_TEST(SegmentedRowTest, PressingASegmentSelectsItsItem) {
    QTest::mouseClick(this->segments()[2], Qt::LeftButton);
    EXPECT_EQ(this->selection, 30);
    EXPECT_EQ(this->row.selectedIndex(), 2);
    QTest::mouseClick(this->segments()[2], Qt::LeftButton);
    EXPECT_EQ(this->row.selectedIndex(), 2);
}

TYPED_TEST(SegmentedRowTest, SelectionThatIsNoItemHighlightsNothingUntilOneIsPressed) {
    this->selection = 99;
    this->choice.refresh();
    EXPECT_EQ(this->row.selectedIndex(), std::nullopt);
    for (const auto* segment : this->segments())
        EXPECT_FALSE(segment->isChecked());
    QTest::mouseClick(this->segments()[0], Qt::LeftButton);
    EXPECT_EQ(this->selection, 10);
    EXPECT_EQ(this->row.selectedIndex(), 0);
}

TYPED_TEST(SegmentedRowTest, ZeroItemsKeepWorking) {
    this->choice.setItems({});
    EXPECT_TRUE(this->segments().isEmpty());
    this->window.resize(300, 100);
    QTest::keyClick(&this->row, Qt::Key_Right);
    EXPECT_EQ(this->writes, 0);
    this->choice.setItems({20, 21});
    EXPECT_EQ(this->segments().size(), 2);
    EXPECT_EQ(this->row.selectedIndex(), 0);
}

TYPED_TEST(SegmentedRowTest, ArrowsHomeAndEndChoose) {
    struct Row {
        Qt::Key key;
        int expected;
    };

    QTest::keyClick(this->segments()[1], Qt::Key_Right);
    for (const auto& [key, expected] :
         {Row{Qt::Key_Right, 30},
          Row{Qt::Key_Left, 20},
          Row{Qt::Key_Up, 10},
          Row{Qt::Key_Left, 10},
          Row{Qt::Key_Down, 20},
          Row{Qt::Key_End, 30},
          Row{Qt::Key_Home, 10}}) {
        QTest::keyClick(this->focused(), key);
        EXPECT_EQ(this->selection, expected) << key;
    }
}

TYPED_TEST(SegmentedRowTest, ArrowsGoWhereTheyPointInARightToLeftLayout) {
    this->window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(this->segments()[0]->x(), this->segments()[2]->x());
    QTest::keyClick(this->segments()[1], Qt::Key_Left);
    EXPECT_EQ(this->selection, 30);
    QTest::keyClick(this->focused(), Qt::Key_Right);
    EXPECT_EQ(this->selection, 20);
}

TYPED_TEST(SegmentedRowTest, SegmentsShareTheWidthEqually) {
    for (const int width : {300, 301, 302}) {
        this->row.setFixedWidth(width);
        int total = 0;
        for (const auto* segment : this->segments()) {
            EXPECT_NEAR(segment->width(), width / 3.0, 1);
            total += segment->width();
        }
        EXPECT_EQ(total, width);
    }
}

TYPED_TEST(SegmentedRowTest, IsThirtyHighWhateverItIsGiven) {
    EXPECT_EQ(this->row.height(), 30);
    this->row.resize(200, 80);
    EXPECT_EQ(this->row.height(), 30);
    EXPECT_EQ(this->row.sizeHint().height(), 30);
}

TYPED_TEST(SegmentedRowTest, ChoiceOutOfRangeIsIgnored) {
    Q_EMIT this->row.chosen(3);
    Q_EMIT this->row.chosen(-1);
    EXPECT_EQ(this->writes, 0);
    EXPECT_EQ(this->row.selectedIndex(), 1);
}

TYPED_TEST(SegmentedRowTest, TabStopsOnceAlsoWithoutASelection) {
    const auto stops = [this] {
        int count = 0;
        for (const auto* segment : this->segments())
            count += (segment->focusPolicy() & Qt::TabFocus) != 0 ? 1 : 0;
        return count;
    };
    EXPECT_EQ(stops(), 1);
    this->row.setChoices({u"One"_s, u"Two"_s}, std::nullopt);
    EXPECT_EQ(stops(), 1);
    this->row.setChoices({u"One"_s, u"Two"_s}, 7);
    EXPECT_EQ(this->row.selectedIndex(), std::nullopt);
    EXPECT_EQ(stops(), 1);
}

TYPED_TEST(SegmentedRowTest, SegmentsAreRadioButtons) {
    auto& interface = accessible(*this->segments()[1]);
    EXPECT_EQ(interface.role(), QAccessible::RadioButton);
    EXPECT_EQ(interface.text(QAccessible::Name), u"Item 20"_s);
    EXPECT_TRUE(interface.state().checked);
    EXPECT_FALSE(accessible(*this->segments()[0]).state().checked);
}

} // namespace
} // namespace quorvane
