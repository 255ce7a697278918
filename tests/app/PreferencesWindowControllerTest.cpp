// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"

#include <QTest>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PreferencesWindowControllerTest : public PresentationFixture {};

TEST_F(PreferencesWindowControllerTest, ReplacesThePanelAndIsKept) {
    launch();
    delegate->performAction(u"preferences"_s);
    EXPECT_FALSE(panel()->isVisible());
    auto* window = preferences();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    window->close();
    delegate->showPreferences();
    EXPECT_EQ(preferences(), window);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(PreferencesWindowControllerTest, HidesPanelAndPopover) {
    for (const auto mode : {PresentationMode::Popover, PresentationMode::Window}) {
        launchAs(mode);
        delegate->showPreferences();
        EXPECT_FALSE(isShown(popover()));
        EXPECT_FALSE(isShown(panel()));
        EXPECT_TRUE(isShown(preferences()));
        EXPECT_EQ(calls().back(), "activate preferences");
    }
}

TEST_F(PreferencesWindowControllerTest, ShowsTheFocusAtOnceWhenOpenedByKeyboard) {
    launchAs(PresentationMode::Window);
    ASSERT_FALSE(showsFocus(panel()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_TRUE(isShown(preferences()));
    EXPECT_TRUE(showsFocus(preferences()));
}

TEST_F(PreferencesWindowControllerTest, DoesNotShowTheFocusWhenOpenedFromTheIconsMenu) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    EXPECT_FALSE(showsFocus(preferences()));
}

TEST_F(PreferencesWindowControllerTest, CannotBeMinimised) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    const auto flags = preferences()->windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(PreferencesWindowControllerTest, EscapeClosesTheWindowAndKeepsIt) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    auto* window = preferences();
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(isShown(window));
    delegate->showPreferences();
    EXPECT_EQ(preferences(), window);
}

} // namespace
} // namespace quorvane
