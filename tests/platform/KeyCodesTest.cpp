// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>

#include <gtest/gtest.h>

#include <array>
#include <linux/input-event-codes.h>
#include <set>

namespace quorvane {

namespace {

struct Row {
    std::uint16_t usage; ///< of the HID keyboard page (0x07): both numberings derive from it
    std::uint16_t evdevCode;
    std::uint32_t keyCode;
};

// Joined over the HID usages, from the kernel's own table of them and from the published key codes
// of browsers' key tables; numbers, so that no name can be wrong in both places.
constexpr std::array rows{
    Row{0x04, 30, 0x00},  Row{0x05, 48, 0x0b},  Row{0x06, 46, 0x08},  Row{0x07, 32, 0x02},
    Row{0x08, 18, 0x0e},  Row{0x09, 33, 0x03},  Row{0x0a, 34, 0x05},  Row{0x0b, 35, 0x04},
    Row{0x0c, 23, 0x22},  Row{0x0d, 36, 0x26},  Row{0x0e, 37, 0x28},  Row{0x0f, 38, 0x25},
    Row{0x10, 50, 0x2e},  Row{0x11, 49, 0x2d},  Row{0x12, 24, 0x1f},  Row{0x13, 25, 0x23},
    Row{0x14, 16, 0x0c},  Row{0x15, 19, 0x0f},  Row{0x16, 31, 0x01},  Row{0x17, 20, 0x11},
    Row{0x18, 22, 0x20},  Row{0x19, 47, 0x09},  Row{0x1a, 17, 0x0d},  Row{0x1b, 45, 0x07},
    Row{0x1c, 21, 0x10},  Row{0x1d, 44, 0x06},  Row{0x1e, 2, 0x12},   Row{0x1f, 3, 0x13},
    Row{0x20, 4, 0x14},   Row{0x21, 5, 0x15},   Row{0x22, 6, 0x17},   Row{0x23, 7, 0x16},
    Row{0x24, 8, 0x1a},   Row{0x25, 9, 0x1c},   Row{0x26, 10, 0x19},  Row{0x27, 11, 0x1d},
    Row{0x28, 28, 0x24},  Row{0x29, 1, 0x35},   Row{0x2a, 14, 0x33},  Row{0x2b, 15, 0x30},
    Row{0x2c, 57, 0x31},  Row{0x2d, 12, 0x1b},  Row{0x2e, 13, 0x18},  Row{0x2f, 26, 0x21},
    Row{0x30, 27, 0x1e},  Row{0x31, 43, 0x2a},  Row{0x33, 39, 0x29},  Row{0x34, 40, 0x27},
    Row{0x35, 41, 0x32},  Row{0x36, 51, 0x2b},  Row{0x37, 52, 0x2f},  Row{0x38, 53, 0x2c},
    Row{0x39, 58, 0x39},  Row{0x3a, 59, 0x7a},  Row{0x3b, 60, 0x78},  Row{0x3c, 61, 0x63},
    Row{0x3d, 62, 0x76},  Row{0x3e, 63, 0x60},  Row{0x3f, 64, 0x61},  Row{0x40, 65, 0x62},
    Row{0x41, 66, 0x64},  Row{0x42, 67, 0x65},  Row{0x43, 68, 0x6d},  Row{0x44, 87, 0x67},
    Row{0x45, 88, 0x6f},  Row{0x49, 110, 0x72}, Row{0x4a, 102, 0x73}, Row{0x4b, 104, 0x74},
    Row{0x4c, 111, 0x75}, Row{0x4d, 107, 0x77}, Row{0x4e, 109, 0x79}, Row{0x4f, 106, 0x7c},
    Row{0x50, 105, 0x7b}, Row{0x51, 108, 0x7d}, Row{0x52, 103, 0x7e}, Row{0x53, 69, 0x47},
    Row{0x54, 98, 0x4b},  Row{0x55, 55, 0x43},  Row{0x56, 74, 0x4e},  Row{0x57, 78, 0x45},
    Row{0x58, 96, 0x4c},  Row{0x59, 79, 0x53},  Row{0x5a, 80, 0x54},  Row{0x5b, 81, 0x55},
    Row{0x5c, 75, 0x56},  Row{0x5d, 76, 0x57},  Row{0x5e, 77, 0x58},  Row{0x5f, 71, 0x59},
    Row{0x60, 72, 0x5b},  Row{0x61, 73, 0x5c},  Row{0x62, 82, 0x52},  Row{0x63, 83, 0x41},
    Row{0x64, 86, 0x0a},  Row{0x67, 117, 0x51}, Row{0x68, 183, 0x69}, Row{0x69, 184, 0x6b},
    Row{0x6a, 185, 0x71}, Row{0x6b, 186, 0x6a}, Row{0x6c, 187, 0x40}, Row{0x6d, 188, 0x4f},
    Row{0x6e, 189, 0x50}, Row{0x6f, 190, 0x5a}, Row{0x85, 121, 0x5f}, Row{0x87, 89, 0x5e},
    Row{0x89, 124, 0x5d}, Row{0x90, 122, 0x68}, Row{0x91, 123, 0x66}, Row{0xe0, 29, 0x3b},
    Row{0xe1, 42, 0x38},  Row{0xe2, 56, 0x3a},  Row{0xe3, 125, 0x37}, Row{0xe4, 97, 0x3e},
    Row{0xe5, 54, 0x3c},  Row{0xe6, 100, 0x3d}, Row{0xe7, 126, 0x36},
};

TEST(KeyCodes, NameTheKeysOfAKeyboardByTheirPosition) {
    for (const auto& row : rows) {
        EXPECT_EQ(evdevFromKeyCode(row.keyCode), row.evdevCode) << "HID usage " << row.usage;
        EXPECT_EQ(keyCodeFromEvdev(row.evdevCode), row.keyCode) << "HID usage " << row.usage;
    }
}

TEST(KeyCodes, OfKeysWithoutANameAreTheKernelsMovedUp) {
    EXPECT_EQ(keyCodeFromEvdev(KEY_SYSRQ), 0x100U + 99);
    EXPECT_EQ(keyCodeFromEvdev(KEY_PAUSE), 0x100U + 119);
    EXPECT_EQ(keyCodeFromEvdev(KEY_COMPOSE), 0x100U + 127);
    EXPECT_EQ(keyCodeFromEvdev(KEY_VOLUMEUP), 0x100U + 115);
    EXPECT_EQ(evdevFromKeyCode(0x100 + 119), KEY_PAUSE);
}

TEST(KeyCodes, AreOneToOneWithTheKernels) {
    std::set<std::uint32_t> seen;
    for (std::uint16_t evdevCode = 1; evdevCode <= KEY_MAX; ++evdevCode) {
        const auto keyCode = keyCodeFromEvdev(evdevCode);
        EXPECT_TRUE(seen.insert(keyCode).second) << "twice: " << keyCode;
        EXPECT_EQ(evdevFromKeyCode(keyCode), evdevCode);
    }
}

TEST(KeyCodes, HaveScanCodesEightAboveTheKernels) {
    for (const auto& row : rows) {
        const std::uint32_t scanCode = row.evdevCode + 8U;
        EXPECT_EQ(scanCodeFromKeyCode(row.keyCode), scanCode) << "HID usage " << row.usage;
        EXPECT_EQ(keyCodeFromScanCode(scanCode), row.keyCode) << "HID usage " << row.usage;
    }
    EXPECT_EQ(keyCodeFromScanCode(127), 0x100U + 119) << "Pause, which has no code of its own";
}

TEST(KeyCodes, AreNoneForScanCodesThatNoKeyHas) {
    EXPECT_EQ(keyCodeFromScanCode(0), std::nullopt) << "an event that came from no keyboard";
    EXPECT_EQ(keyCodeFromScanCode(8), std::nullopt) << "the kernel's KEY_RESERVED";
    EXPECT_EQ(keyCodeFromScanCode(KEY_MAX + 9), std::nullopt);
    EXPECT_EQ(keyCodeFromScanCode(0xffffffff), std::nullopt);
    EXPECT_EQ(scanCodeFromKeyCode(0x34), std::nullopt) << "a gap in the numbering";
}

TEST(KeyCodes, ThatNameNoKeyGiveNone) {
    EXPECT_EQ(evdevFromKeyCode(0x34), std::nullopt) << "a gap in the numbering";
    EXPECT_EQ(evdevFromKeyCode(0x7f), std::nullopt);
    EXPECT_EQ(evdevFromKeyCode(0xff), std::nullopt);
    EXPECT_EQ(evdevFromKeyCode(0x100), std::nullopt) << "the kernel's KEY_RESERVED";
    EXPECT_EQ(evdevFromKeyCode(0x100 + KEY_D), std::nullopt) << "D has its own code";
    EXPECT_EQ(evdevFromKeyCode(0x100 + KEY_MAX + 1), std::nullopt);
    EXPECT_EQ(evdevFromKeyCode(0xffffffff), std::nullopt);
}

} // namespace

} // namespace quorvane
