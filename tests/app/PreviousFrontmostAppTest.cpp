// SPDX-License-Identifier: MIT
#include "PreviousFrontmostApp.h"

#include <testing/CallLog.h>
#include <testing/FakeWorkspace.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const RunningApplication editor{42, u"editor"_s, u"Editor"_s};
const RunningApplication browser{43, u"browser"_s, u"Browser"_s};

class PreviousFrontmostAppTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeWorkspace workspace{log};
    PreviousFrontmostApp previous{workspace};
};

TEST_F(PreviousFrontmostAppTest, IsTheOneThatWasInFrontWhenItWasAsked) {
    workspace.setFront(editor);
    previous.remember();
    workspace.setFront(browser);
    EXPECT_EQ(previous.current(), (FrontmostApplication{editor, true}));
    EXPECT_EQ(previous.title(), u"Editor"_s);
}

TEST_F(PreviousFrontmostAppTest, ForgetsTheOldOneWhenNoneIsInFront) {
    EXPECT_EQ(previous.current(), FrontmostApplication{});
    workspace.setFront(editor);
    previous.remember();
    workspace.setFront(std::nullopt);
    previous.remember();
    EXPECT_EQ(previous.current(), (FrontmostApplication{std::nullopt, true}));
    EXPECT_EQ(previous.title(), QString());
}

TEST_F(PreviousFrontmostAppTest, GoesOnToAnotherOneWhileTheOldOneIsShown) {
    workspace.setFront(editor);
    previous.remember();
    workspace.setFront(browser);
    previous.rememberUnlessGone();
    EXPECT_EQ(previous.current().application, browser);
}

TEST_F(PreviousFrontmostAppTest, IsNotReplacedByWhatWasBehindItWhenItGoes) {
    workspace.setFront(editor);
    previous.remember();
    workspace.close(editor);
    workspace.setFront(browser);
    previous.rememberUnlessGone();
    EXPECT_EQ(previous.current(), (FrontmostApplication{std::nullopt, true}));
    previous.rememberUnlessGone();
    EXPECT_EQ(previous.current().application, std::nullopt);
    previous.remember();
    EXPECT_EQ(previous.current().application, browser);
}

} // namespace
} // namespace quorvane
