// SPDX-License-Identifier: MIT
#include <hotkey/StoredHotKey.h>
#include <testing/MemoryDefaults.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

struct Row {
    qint64 keyCode;
    qint64 modifiers;
};

MemoryDefaults storeOf(const Row& row) {
    MemoryDefaults store;
    setting::hotKeyCode.store(store, row.keyCode);
    setting::hotKeyModifiers.store(store, row.modifiers);
    return store;
}

class StoredHotKeyThatIsNone : public testing::TestWithParam<Row> {};

TEST_P(StoredHotKeyThatIsNone, IsReplacedByTheDefaultInMemoryAndSaid) {
    const auto store = storeOf(GetParam());
    testing::internal::CaptureStderr();
    EXPECT_EQ(storedHotKey(store), HotKeyCombo());
    const auto said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(said, '\n'), 1) << said;
    EXPECT_NE(said.find("hotKeyCode " + std::to_string(GetParam().keyCode)), std::string::npos)
        << said;
    EXPECT_EQ(setting::hotKeyCode.storedIn(store), GetParam().keyCode);
    EXPECT_EQ(setting::hotKeyModifiers.storedIn(store), GetParam().modifiers);
}

INSTANTIATE_TEST_SUITE_P(
    Every,
    StoredHotKeyThatIsNone,
    testing::Values(
        Row{-1, 0x100},
        Row{65536, 0x100},
        Row{4294967296, 0x100},
        Row{9223372036854775807, 0x100},
        Row{2, -1},
        Row{2, 4294967296},
        Row{2, 0},
        Row{2, 0x400}));

TEST(StoredHotKey, WithoutModifiersIsNone) {
    MemoryDefaults store;
    setting::hotKeyCode.store(store, 9);
    EXPECT_EQ(storedHotKey(store), HotKeyCombo());
}

TEST(StoredHotKey, IsLoadedSilentlyWhereItIsOne) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(storedHotKey(MemoryDefaults()), HotKeyCombo());
    EXPECT_EQ(storedHotKey(storeOf({9, 0x100})), (HotKeyCombo{9, 0x100}));
    EXPECT_EQ(storedHotKey(storeOf({65535, 0x1b00})), (HotKeyCombo{65535, 0x1b00}));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace quorvane
