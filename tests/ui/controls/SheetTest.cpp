// SPDX-License-Identifier: MIT
#include <controls/SearchField.h>
#include <controls/Sheet.h>
#include <controls/TextButton.h>
#include <support/ControlWindow.h>

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class SheetTest : public testing::Test {
protected:
    ControlWindow window;
    TextButton& below = window.add(new TextButton(u"Below"_s));
    QWidget* content = new QWidget;
    SearchField* field = new SearchField(u"Search"_s, {}, content);
    TextButton* done = new TextButton(u"Done"_s, content);
    QPointer<Sheet> sheet;

    SheetTest() {
        window.setFixedSize(500, 488);
        EXPECT_TRUE(window.open());
        below.setFocus(Qt::TabFocusReason);
        content->setFocusProxy(field);
        sheet = new Sheet(&window, content);
        sheet->open();
    }
};

TEST_F(SheetTest, CoversItsWindowAndTakesTheFocus) {
    EXPECT_EQ(sheet->geometry(), window.rect());
    EXPECT_EQ(window.focusWidget(), field);
    EXPECT_TRUE(QTest::qWaitFor([this] { return content->y() == 40; }));
    EXPECT_EQ(content->geometry(), QRect(30, 40, 440, 432));
    EXPECT_EQ(window.childAt(5, 5), sheet);
}

TEST_F(SheetTest, EscapeClosesItAndGivesTheFocusBack) {
    const QSignalSpy closed(sheet, &Sheet::closed);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(window.focusWidget(), &below);
    EXPECT_TRUE(QTest::qWaitFor([this] { return sheet.isNull(); }));
}

TEST_F(SheetTest, TabStaysInside) {
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), done);
    QTest::keyClick(done, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), field);
    QTest::keyClick(field, Qt::Key_Backtab);
    EXPECT_EQ(window.focusWidget(), done);
}

TEST_F(SheetTest, WhatLiesBelowTakesNoInput) {
    const QSignalSpy clicks(&below, &TextButton::clicked);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {5, 5});
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(SheetTest, GrowsAndShrinksWithItsWindow) {
    window.setFixedSize(500, 600);
    EXPECT_EQ(sheet->geometry(), window.rect());
    EXPECT_EQ(content->height(), 460);
}

TEST(SearchField, ClearButtonShowsForAText) {
    ControlWindow window;
    auto& field = window.add(new SearchField(u"Search by name"_s, {}));
    ASSERT_TRUE(window.open());
    EXPECT_EQ(field.placeholderText(), u"Search by name"_s);
    EXPECT_EQ(accessible(field).text(QAccessible::Name), u"Search"_s);
    EXPECT_EQ(field.size().height(), 32);
    auto* clear = field.findChild<QAbstractButton*>();
    EXPECT_FALSE(clear->isVisible());
    QTest::keyClicks(&field, u"york"_s);
    EXPECT_TRUE(clear->isVisible());
    EXPECT_EQ(accessible(*clear).text(QAccessible::Name), u"Clear"_s);
    EXPECT_GE(clear->width(), 24);
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(field.text(), QString());
    EXPECT_TRUE(field.hasFocus());
    EXPECT_FALSE(clear->isVisible());
}

TEST(SearchField, RightToLeftIsMirrored) {
    ControlWindow window;
    auto& field = window.add(new SearchField(u"Search"_s, {}));
    field.setMinimumWidth(300);
    ASSERT_TRUE(window.open());
    auto* clear = field.findChild<QAbstractButton*>();
    EXPECT_GT(clear->x(), field.width() / 2);
    const auto leftToRight = field.textMargins();
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(clear->x(), field.width() / 2);
    EXPECT_EQ(field.textMargins().left(), leftToRight.right());
    EXPECT_EQ(field.textMargins().right(), leftToRight.left());
}

} // namespace
} // namespace quorvane
