// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <wayland_sway/SwayFrames.h>

namespace quorvane {
namespace {

// By sway-ipc(7), in the byte order of this machine's kind.
const QByteArray treeQuestion("i3-ipc\0\0\0\0\4\0\0\0", 14);
const QByteArray answer("i3-ipc\2\0\0\0\4\0\0\0{}", 16);

TEST(SwayFrames, AreMadeAsTheManualSays) {
    EXPECT_EQ(swayFrame(SwayKind::GetTree, {}), treeQuestion);
    EXPECT_EQ(swayFrame(SwayKind::GetTree, "{}"), answer);
}

TEST(SwayFrames, AreReadHoweverTheyAreCut) {
    SwayFrames frames;
    for (const char byte : answer + answer) {
        EXPECT_FALSE(frames.isBroken());
        frames.append(QByteArray(1, byte));
    }
    const SwayMessage message{4, "{}"};
    EXPECT_EQ(frames.next(), message);
    EXPECT_EQ(frames.next(), message);
    EXPECT_EQ(frames.next(), std::nullopt);
}

TEST(SwayFrames, AreBrokenForGoodByAnythingElse) {
    SwayFrames frames;
    frames.append("HTTP/1.1 400 Bad Request");
    EXPECT_EQ(frames.next(), std::nullopt);
    EXPECT_TRUE(frames.isBroken());
    frames.append(answer);
    EXPECT_EQ(frames.next(), std::nullopt);
}

TEST(SwayFrames, AreBrokenByALengthThatNobodySends) {
    SwayFrames frames;
    frames.append(QByteArray("i3-ipc\0\0\0\177\4\0\0\0", 14));
    EXPECT_EQ(frames.next(), std::nullopt);
    EXPECT_TRUE(frames.isBroken());
}

} // namespace
} // namespace quorvane
