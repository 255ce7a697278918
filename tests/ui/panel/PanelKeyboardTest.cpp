// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <QClipboard>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PanelKeyboardTest : public PopoverFixture {
protected:
    /// The description where there is one, as chips that have the same text differ by it alone.
    QString focusedName() {
        auto* interface = QAccessible::queryAccessibleInterface(view.focusWidget());
        const auto description = view.focusWidget()->accessibleDescription();
        return description.isEmpty() ? interface->text(QAccessible::Name) : description;
    }

    PressableControl& chip(const QString& description) {
        for (auto* control : view.findChildren<PressableControl*>()) {
            if (control->accessibleDescription() == description)
                return *control;
        }
        throw std::runtime_error(description.toStdString());
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        auto* popup = QApplication::activePopupWidget();
        auto* receiver = popup != nullptr ? popup->focusWidget() : view.focusWidget();
        QTest::keyClick(receiver != nullptr ? receiver : popup, key, modifiers);
    }
};

TEST_F(PanelKeyboardTest, StartDateHasTheFocusWhenThePanelOpens) {
    EXPECT_EQ(focusedName(), u"Start date"_s);
    button(u"Insert"_s).setFocus();
    view.hide();
    view.show();
    EXPECT_EQ(focusedName(), u"Start date"_s);
}

TEST_F(PanelKeyboardTest, WithoutTheDateTheStartTimeHasIt) {
    view.hide();
    model.setIncludeDate(false);
    queue.run();
    view.show();
    EXPECT_EQ(focusedName(), u"Start time"_s);
}

TEST_F(PanelKeyboardTest, OpenPickerHasTheFocusWhenThePanelComesBack) {
    QTest::mouseClick(&button(u"Add time zone"_s), Qt::LeftButton);
    ASSERT_EQ(focusedName(), u"Search"_s);
    view.hide();
    view.show();
    EXPECT_EQ(focusedName(), u"Search"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(closed, 0);
    view.hide();
    view.show();
    EXPECT_EQ(focusedName(), u"Start date"_s);
}

TEST_F(PanelKeyboardTest, RemovingTheLastZoneLeadsToTheWayBack) {
    model.setFavoriteTimeZoneIdentifiers({});
    queue.run();
    button(u"EST"_s).setFocus();
    press(Qt::Key_Space);
    queue.run();
    EXPECT_EQ(focusedName(), u"Add time zone"_s);
}

TEST_F(PanelKeyboardTest, TabGoesFromTheHeaderToInsert) {
    model.setIsRange(true);
    model.setFormatPreset(DateFormatPreset::Custom);
    model.setSelectedTimeZones(
        {*zones.zone(u"America/New_York"_s), *zones.zone(u"Europe/London"_s)});
    model.setFavoriteTimeZoneIdentifiers({u"America/New_York"_s, u"Asia/Tokyo"_s});
    queue.run();
    button(u"Insert"_s).setFocus();
    QStringList order;
    do {
        press(Qt::Key_Tab);
        order.append(focusedName());
    } while (!order.back().startsWith(u"Insert"_s) && order.size() < 40);
    EXPECT_EQ(
        order.join(u'\n').toStdString(),
        (QStringList{
             u"Open as popover at the tray icon"_s,
             u"More"_s,
             u"Close"_s,
             u"Date"_s,
             u"Time"_s,
             u"Start date"_s,
             u"Start time"_s,
             u"Lasts 1 hour"_s,
             u"End date"_s,
             u"End time"_s,
             u"Add time zone"_s,
             u"New York, UTC−5. Remove"_s,
             u"Format"_s,
             u"Inline"_s,
             u"Custom format"_s,
             u"Letters of a pattern"_s,
             u"Preview"_s,
             u"Ctrl+C"_s,
             u"Insert (Ctrl+Return)"_s})
            .join(u'\n')
            .toStdString());
}

TEST_F(PanelKeyboardTest, ChoosingCustomLeadsToThePattern) {
    choose(u"Format"_s, u"Custom…"_s);
    auto& pattern = field(u"Custom format"_s);
    ASSERT_TRUE(pattern.hasFocus());
    EXPECT_FALSE(pattern.hasSelectedText());
    EXPECT_EQ(pattern.cursorPosition(), pattern.text().size());
    press(Qt::Key_S);
    queue.run();
    EXPECT_EQ(model.customFormatString(), u"yyyy-MM-dd HH:mm zzzs"_s);
}

TEST_F(PanelKeyboardTest, ArrowsOnTheClosedPopUpMayPassCustom) {
    model.setFormatPreset(DateFormatPreset::UnixTimestamp);
    queue.run();
    popUp(u"Format"_s).setFocus();
    press(Qt::Key_Down);
    queue.run();
    EXPECT_EQ(model.formatPreset(), DateFormatPreset::Custom);
    EXPECT_TRUE(popUp(u"Format"_s).hasFocus());
}

TEST_F(PanelKeyboardTest, ControlCCopiesAsTheButtonDoes) {
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(pasteboard.contents(), plainText(u"March 9, 2024 at 5:05 PM EST"_s));
    EXPECT_EQ(button(u"Copy"_s).toolTip(), u"Copy (Ctrl+C)"_s);
}

TEST_F(PanelKeyboardTest, ControlCCopiesFromFieldsThatHaveNothingSelected) {
    choose(u"Format"_s, u"Custom…"_s);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(pasteboard.contents(), plainText(u"2024-03-09 17:05 EST"_s));
    find<QWidget>(QAccessible::EditableText, u"Preview"_s).setFocus();
    field(u"Custom format"_s).setText(u"yyyy"_s);
    model.setCustomFormatString(u"yyyy"_s);
    queue.run();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(pasteboard.contents(), plainText(u"2024"_s));
    EXPECT_EQ(button(u"Copy"_s).text(), u"Copied"_s);
}

TEST_F(PanelKeyboardTest, ControlCLeavesASelectionToItsField) {
    choose(u"Format"_s, u"Custom…"_s);
    auto& pattern = field(u"Custom format"_s);
    pattern.setSelection(0, 4);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(pasteboard.contents().items.empty());
    EXPECT_EQ(QApplication::clipboard()->text(), u"yyyy"_s);
    auto& output = find<QPlainTextEdit>(QAccessible::EditableText, u"Preview"_s);
    output.setFocus();
    output.selectAll();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(pasteboard.contents().items.empty());
    EXPECT_EQ(QApplication::clipboard()->text(), u"2024-03-09 17:05 EST"_s);
}

TEST_F(PanelKeyboardTest, ControlCDoesNothingWhileThereIsNothingToCopy) {
    model.setSelectedTimeZones({});
    queue.run();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(pasteboard.contents().items.empty());
    EXPECT_TRUE(button(u"Copy"_s).isVisible());
}

TEST_F(PanelKeyboardTest, ControlReturnInsertsFromATextField) {
    choose(u"Format"_s, u"Custom…"_s);
    field(u"Custom format"_s).setFocus();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(inserted, 1);
}

TEST_F(PanelKeyboardTest, ControlReturnInsertsFromAnOpenPopover) {
    for (const auto& opener : {u"Start date"_s, u"Start time"_s}) {
        chip(opener).click();
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        inserted = 0;
        press(Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(inserted, 1) << opener.toStdString();
        press(Qt::Key_Escape);
    }
    find<QAbstractButton>(QAccessible::ComboBox, u"Format"_s).click();
    press(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(inserted, 2);
}

TEST_F(PanelKeyboardTest, ControlReturnInsertsFromThePicker) {
    button(u"Add time zone"_s).click();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(inserted, 1);
}

TEST_F(PanelKeyboardTest, OtherKeysOfThePanelHoldInAnOpenPopoverToo) {
    chip(u"Start time"_s).click();
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(preferences, 1);
}

TEST_F(PanelKeyboardTest, KeysOfThePanelDoNotHoldInAnotherWindow) {
    QLineEdit other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(&other, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(&other, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(inserted + preferences, 0);
}

TEST_F(PanelKeyboardTest, HeldControlReturnInsertsOnce) {
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    constexpr bool isPress = true;
    constexpr bool isRepeat = true;
    // Sent by the way that passes the shortcuts, as keyClick() does.
    QTest::simulateEvent(&view, isPress, Qt::Key_Return, Qt::ControlModifier, u"\r"_s, isRepeat);
    EXPECT_EQ(inserted, 1);
}

TEST_F(PanelKeyboardTest, EscapeClosesTheInnermostThingAndThenThePanel) {
    chip(u"Start time"_s).click();
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(focusedName(), u"Start time"_s);
    button(u"Add time zone"_s).setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Escape);
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(button(u"Add time zone"_s).hasFocus());
    press(Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelKeyboardTest, EscapeInTheCustomPatternClosesThePanel) {
    choose(u"Format"_s, u"Custom…"_s);
    field(u"Custom format"_s).setFocus();
    press(Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
}

} // namespace
} // namespace quorvane
