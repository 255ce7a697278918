// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <controls/KeyCap.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr std::uint32_t f5 = 96;
constexpr std::uint32_t f6 = 97;

class PopoverHeaderTest : public PopoverFixture {
protected:
    QAbstractButton& more() { return find<QAbstractButton>(QAccessible::ButtonMenu, u"More"_s); }

    QWidget* menuItem(const QString& title) {
        return widgetByRole(*QApplication::activePopupWidget(), QAccessible::MenuItem, title);
    }

    std::vector<KeyCap*> visibleCaps() {
        std::vector<KeyCap*> visible;
        for (auto* cap : view.findChildren<KeyCap*>()) {
            if (!cap->isHidden())
                visible.push_back(cap);
        }
        return visible;
    }

    QStringList caps() {
        QStringList labels;
        for (const auto* cap : visibleCaps())
            labels.append(cap->text());
        return labels;
    }

    QStringList capNames() {
        QStringList names;
        for (const auto* cap : visibleCaps())
            names.append(cap->accessibleName());
        return names;
    }
};

TEST_F(PopoverHeaderTest, SwitchLeadsToTheOtherModeAndSaysWhere) {
    model.setPresentationMode(PresentationMode::Popover);
    queue.run();
    button(u"Open as panel"_s).click();
    queue.run();
    EXPECT_EQ(model.presentationMode(), PresentationMode::Window);
    EXPECT_EQ(
        button(u"Open as popover at the tray icon"_s).toolTip(),
        u"Open as popover at the tray icon"_s);
    button(u"Open as popover at the tray icon"_s).click();
    EXPECT_EQ(model.presentationMode(), PresentationMode::Popover);
}

TEST_F(PopoverHeaderTest, MenuOffersPreferencesUpdatesAndQuit) {
    QTest::mouseClick(&more(), Qt::LeftButton);
    QStringList titles;
    for (const auto* row : QApplication::activePopupWidget()->findChildren<MenuRow*>())
        titles.append(row->text());
    EXPECT_EQ(
        titles, (QStringList{u"Preferences…"_s, u"Check for Updates…"_s, u"Quit Quorvane"_s}));
    EXPECT_EQ(menuItem(u"Preferences…"_s)->accessibleDescription(), u"Ctrl+,"_s);
    EXPECT_EQ(menuItem(u"Check for Updates…"_s)->accessibleDescription(), QString());
    EXPECT_EQ(menuItem(u"Quit Quorvane"_s)->accessibleDescription(), u"Ctrl+Q"_s);
    QTest::mouseClick(menuItem(u"Check for Updates…"_s), Qt::LeftButton);
    EXPECT_EQ(updateChecks, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(PopoverHeaderTest, MenuWorksByKeyboard) {
    more().setFocus();
    QTest::keyClick(&more(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(quits, 1);
    QTest::keyClick(&more(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(preferences, 1);
    EXPECT_TRUE(more().hasFocus());
}

TEST_F(PopoverHeaderTest, MenuIsAMenuBelowItsButtonWithRightEdgesFlush) {
    QTest::mouseClick(&more(), Qt::LeftButton);
    const auto* popup = QApplication::activePopupWidget();
    const QPoint corner = more().mapToGlobal(QPoint(more().width(), more().height()));
    EXPECT_EQ(popup->geometry().right() + 1, corner.x());
    EXPECT_EQ(popup->geometry().top(), corner.y() + 6);
    const auto* accessible = QAccessible::queryAccessibleInterface(&more());
    EXPECT_TRUE(accessible->state().expanded);
    EXPECT_EQ(accessible->child(0)->child(0)->role(), QAccessible::PopupMenu);
}

TEST_F(PopoverHeaderTest, PressOfAnAssistiveToolWhileTheMenuIsOpenClosesIt) {
    more().click();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    more().click();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(more().hasFocus());
}

TEST_F(PopoverHeaderTest, KeyCapsFollowTheShortcut) {
    EXPECT_EQ(caps().size(), 4);
    model.setHotKey({2, combomodifier::control});
    queue.run();
    EXPECT_EQ(caps().size(), 2);
    EXPECT_EQ(caps().front(), u"Ctrl"_s);
}

TEST_F(PopoverHeaderTest, OneTooltipOverTheRowOfCapsSaysTheWholeShortcut) {
    model.setHotKey({f5, combomodifier::control | combomodifier::command});
    queue.run();
    ASSERT_EQ(visibleCaps().size(), 3U);
    const auto tooltip = u"Ctrl+Super+F5"_s;
    for (const auto* cap : visibleCaps()) {
        EXPECT_EQ(cap->toolTip(), QString());
        EXPECT_EQ(cap->parentWidget()->toolTip(), tooltip);
    }
}

TEST_F(PopoverHeaderTest, KeyCapsAreNamedForThoseWhoHearThem) {
    model.setHotKey({f5, combomodifier::control});
    queue.run();
    EXPECT_EQ(caps(), (QStringList{u"Ctrl"_s, u"F5"_s}));
    EXPECT_EQ(capNames(), (QStringList{u"Control"_s, u"F5"_s}));
    model.setHotKey({f6, combomodifier::control});
    queue.run();
    EXPECT_EQ(capNames(), (QStringList{u"Control"_s, u"F6"_s}));
}

TEST_F(PopoverHeaderTest, CloseAsksItsOwner) {
    button(u"Close"_s).click();
    EXPECT_EQ(closed, 1);
}

} // namespace
} // namespace quorvane
