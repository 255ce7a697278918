// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto login = u"Start at login"_s;
const auto refusal = u"Your desktop did not allow this."_s;

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
    EXPECT_TRUE(shows(refusal));
    autostart.fails = false;
    QTest::mouseClick(label(login), Qt::LeftButton);
    EXPECT_TRUE(box(login).isChecked());
    EXPECT_FALSE(shows(refusal));
}

TEST_F(GeneralSectionTest, SwitchWaitsForTheUsersAnswerAndSaysSo) {
    const auto waiting = u"Waiting for your answer"_s;
    autostart.asks = true;
    QTest::mouseClick(label(login), Qt::LeftButton);
    EXPECT_FALSE(box(login).isChecked());
    EXPECT_TRUE(shows(waiting));
    autostart.answer(true);
    EXPECT_TRUE(box(login).isChecked());
    EXPECT_FALSE(shows(waiting));
    QTest::mouseClick(label(login), Qt::LeftButton);
    autostart.answer(false);
    EXPECT_TRUE(box(login).isChecked()) << "as it was";
    EXPECT_TRUE(shows(refusal));
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
