// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto login = u"Start at login"_s;

class GeneralSectionTest : public PreferencesFixture {};

TEST_F(GeneralSectionTest, StartAtLoginIsOffAtFirstAndDecidedByItsSwitch) {
    EXPECT_FALSE(box(login).isChecked());
    QTest::mouseClick(label(login), Qt::LeftButton);
    EXPECT_TRUE(autostart.isOn());
    EXPECT_TRUE(box(login).isChecked());
    box(login).setFocus(Qt::TabFocusReason);
    QTest::keyClick(view->focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(autostart.isOn());
    EXPECT_FALSE(box(login).isChecked());
}

TEST_F(GeneralSectionTest, SwitchFollowsWhatIsDecidedElsewhere) {
    autostart.changeElsewhere(true);
    EXPECT_TRUE(box(login).isChecked());
    autostart.changeElsewhere(false);
    EXPECT_FALSE(box(login).isChecked());
}

TEST_F(GeneralSectionTest, SwitchGoesBackWhereItCannotBeDone) {
    autostart.fails = true;
    QTest::mouseClick(label(login), Qt::LeftButton);
    EXPECT_FALSE(box(login).isChecked());
}

TEST_F(GeneralSectionTest, WhatCannotBeDecidedHereIsNotOffered) {
    autostart.available = false;
    openView();
    EXPECT_FALSE(shows(login));
    EXPECT_TRUE(shows(u"Remember format and zones"_s));
}

TEST_F(GeneralSectionTest, NewsAfterTheViewHasGoneHarmNobody) {
    keyboard.reset();
    view.reset();
    autostart.changeElsewhere(true);
}

} // namespace
} // namespace quorvane
