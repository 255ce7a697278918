// SPDX-License-Identifier: MIT
#include "PreviousFrontmostApp.h"

#include <testing/CallLog.h>
#include <testing/FakeWorkspace.h>
#include <testing/VirtualMainQueue.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class PreviousFrontmostAppTest : public testing::Test {
protected:
    /// The calls since the last question.
    std::vector<std::string> calls() {
        std::vector<std::string> calls;
        for (const auto& call : log.calls())
            calls.push_back(call.what);
        log.clear();
        return calls;
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeWorkspace workspace{log};
    PreviousFrontmostApp previous{workspace};
};

TEST_F(PreviousFrontmostAppTest, ActivatesTheOneThatWasInFrontWhenItWasAsked) {
    workspace.setFront(RunningApplication{42, u"editor"_s});
    previous.remember();
    workspace.setFront(RunningApplication{43, u"browser"_s});
    previous.activate();
    EXPECT_THAT(calls(), ElementsAre("frontmostApplication", "activate editor"));
}

TEST_F(PreviousFrontmostAppTest, ForgetsTheOldOneWhenNoneIsInFront) {
    previous.activate();
    EXPECT_TRUE(calls().empty());
    workspace.setFront(RunningApplication{42, u"editor"_s});
    previous.remember();
    workspace.setFront(std::nullopt);
    previous.remember();
    previous.activate();
    EXPECT_THAT(calls(), ElementsAre("frontmostApplication", "frontmostApplication"));
}

} // namespace
} // namespace quorvane
