// SPDX-License-Identifier: MIT
#include <delivery/CopyText.h>
#include <testing/CallLog.h>
#include <testing/FakePasteboard.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(CopyText, ReplacesWhateverThePasteboardHeldByOneText) {
    VirtualMainQueue queue;
    CallLog log(queue);
    FakePasteboard pasteboard(log, queue);
    pasteboard.setContents({{{pasteboardEntry(u"image/png"_s, "png")}}, std::nullopt});

    EXPECT_EQ(copyText(pasteboard, u"2:05 PM PST\n10:05 PM GMT"_s), PutOutcome::Taken);

    EXPECT_EQ(pasteboard.contents(), plainText(u"2:05 PM PST\n10:05 PM GMT"_s));
    EXPECT_EQ(
        log.calls(),
        (std::vector<CallLog::Call>{
            {{}, "clear"}, {{}, "setString lasting \"2:05 PM PST\n10:05 PM GMT\""}}));
}

TEST(CopyText, TellsThatThePasteboardDidNotTakeIt) {
    VirtualMainQueue queue;
    CallLog log(queue);
    FakePasteboard pasteboard(log, queue);
    pasteboard.setContents(plainText(u"theirs"_s));
    pasteboard.setRefusing(true);
    EXPECT_EQ(copyText(pasteboard, u"ours"_s), PutOutcome::Refused);
    queue.advance(Seconds(1));
    EXPECT_EQ(pasteboard.contents(), plainText(u"theirs"_s));
}

} // namespace
} // namespace quorvane
