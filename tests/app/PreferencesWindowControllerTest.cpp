// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"
#include "WindowActivation.h"

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

TEST_F(PreferencesWindowControllerTest, EscapeAndCtrlWCloseTheWindowAndKeepIt) {
    launchAs(PresentationMode::Window);
    for (const auto& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)}) {
        delegate->showPreferences();
        auto* window = preferences();
        ASSERT_TRUE(isShown(window));
        makeActive(*window);
        QTest::keySequence(window, keys);
        EXPECT_FALSE(isShown(window)) << keys.toString().toStdString();
        delegate->showPreferences();
        EXPECT_EQ(preferences(), window);
    }
}

TEST_F(PreferencesWindowControllerTest, IsADialogToWindowManagers) {
    launch();
    delegate->showPreferences();
    const auto& traits = static_cast<FakeWindowTraits&>(*platform.windowTraits);
    EXPECT_EQ(traits.dialog, preferences()->windowHandle());
}

TEST_F(PreferencesWindowControllerTest, IsCentredAtEachShowUntilTheUserHasMovedIt) {
    launch();
    delegate->showPreferences();
    const auto area = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(preferences()->geometry().center().x(), area.center().x());
    const auto centred = preferences()->geometry();
    // The window manager, twice: what it insists on is left.
    const auto elsewhere = centred.translated(2, 24);
    for (const auto& left : {centred, elsewhere}) {
        preferences()->setGeometry(elsewhere);
        queue.run();
        EXPECT_EQ(preferences()->geometry(), left);
    }
    preferences()->close();
    delegate->showPreferences();
    EXPECT_EQ(preferences()->geometry(), centred);
    EXPECT_EQ(frames().frame(u"Preferences"_s), std::nullopt);
}

TEST_F(PreferencesWindowControllerTest, ComesBackWhereTheUserPutIt) {
    launch();
    delegate->showPreferences();
    auto& traits = static_cast<FakeWindowTraits&>(*platform.windowTraits);
    traits.held = HeldInput{{}, 1};
    preferences()->setGeometry(30, 20, 400, 500);
    traits.held = HeldInput{};
    const QRect usersFrame(30, 20, 400, 500);
    preferences()->close();
    delegate->showPreferences();
    EXPECT_EQ(preferences()->geometry(), usersFrame);
    delegate->terminate();
    makeDelegate();
    launch();
    delegate->showPreferences();
    EXPECT_EQ(preferences()->geometry(), usersFrame);
}

TEST_F(PreferencesWindowControllerTest, StoresNoPlaceWhereWindowsHaveNone) {
    const QRect stored(30, 20, 400, 500);
    frames().setFrame(u"Preferences"_s, stored);
    auto& traits = static_cast<FakeWindowTraits&>(*platform.windowTraits);
    traits.places = false;
    launch();
    delegate->showPreferences();
    traits.held = HeldInput{{}, 1};
    preferences()->setGeometry(0, 0, 400, 450);
    delegate->terminate();
    EXPECT_EQ(frames().frame(u"Preferences"_s), stored);
}

} // namespace
} // namespace quorvane
