// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>

#include <algorithm>
#include <array>
#include <linux/input-event-codes.h>

namespace quorvane {

namespace {

struct KeyCodeRow {
    std::uint32_t keyCode;
    std::uint16_t evdevCode;
};

// In the order of the key codes, which is roughly that of an ANSI keyboard's rows.
constexpr std::array keyCodeTable{
    KeyCodeRow{0, KEY_A},           KeyCodeRow{1, KEY_S},
    KeyCodeRow{2, KEY_D},           KeyCodeRow{3, KEY_F},
    KeyCodeRow{4, KEY_H},           KeyCodeRow{5, KEY_G},
    KeyCodeRow{6, KEY_Z},           KeyCodeRow{7, KEY_X},
    KeyCodeRow{8, KEY_C},           KeyCodeRow{9, KEY_V},
    KeyCodeRow{10, KEY_102ND}, // between left Shift and Z on ISO keyboards
    KeyCodeRow{11, KEY_B},          KeyCodeRow{12, KEY_Q},
    KeyCodeRow{13, KEY_W},          KeyCodeRow{14, KEY_E},
    KeyCodeRow{15, KEY_R},          KeyCodeRow{16, KEY_Y},
    KeyCodeRow{17, KEY_T},          KeyCodeRow{18, KEY_1},
    KeyCodeRow{19, KEY_2},          KeyCodeRow{20, KEY_3},
    KeyCodeRow{21, KEY_4},          KeyCodeRow{22, KEY_6},
    KeyCodeRow{23, KEY_5},          KeyCodeRow{24, KEY_EQUAL},
    KeyCodeRow{25, KEY_9},          KeyCodeRow{26, KEY_7},
    KeyCodeRow{27, KEY_MINUS},      KeyCodeRow{28, KEY_8},
    KeyCodeRow{29, KEY_0},          KeyCodeRow{30, KEY_RIGHTBRACE},
    KeyCodeRow{31, KEY_O},          KeyCodeRow{32, KEY_U},
    KeyCodeRow{33, KEY_LEFTBRACE},  KeyCodeRow{34, KEY_I},
    KeyCodeRow{35, KEY_P},          KeyCodeRow{36, KEY_ENTER},
    KeyCodeRow{37, KEY_L},          KeyCodeRow{38, KEY_J},
    KeyCodeRow{39, KEY_APOSTROPHE}, KeyCodeRow{40, KEY_K},
    KeyCodeRow{41, KEY_SEMICOLON},  KeyCodeRow{42, KEY_BACKSLASH},
    KeyCodeRow{43, KEY_COMMA},      KeyCodeRow{44, KEY_SLASH},
    KeyCodeRow{45, KEY_N},          KeyCodeRow{46, KEY_M},
    KeyCodeRow{47, KEY_DOT},        KeyCodeRow{48, KEY_TAB},
    KeyCodeRow{49, KEY_SPACE},      KeyCodeRow{50, KEY_GRAVE},
    KeyCodeRow{51, KEY_BACKSPACE},  KeyCodeRow{53, KEY_ESC},
    KeyCodeRow{54, KEY_RIGHTMETA},  KeyCodeRow{55, KEY_LEFTMETA},
    KeyCodeRow{56, KEY_LEFTSHIFT},  KeyCodeRow{57, KEY_CAPSLOCK},
    KeyCodeRow{58, KEY_LEFTALT},    KeyCodeRow{59, KEY_LEFTCTRL},
    KeyCodeRow{60, KEY_RIGHTSHIFT}, KeyCodeRow{61, KEY_RIGHTALT},
    KeyCodeRow{62, KEY_RIGHTCTRL},  KeyCodeRow{63, KEY_FN},
    KeyCodeRow{64, KEY_F17},        KeyCodeRow{65, KEY_KPDOT},
    KeyCodeRow{67, KEY_KPASTERISK}, KeyCodeRow{69, KEY_KPPLUS},
    KeyCodeRow{71, KEY_NUMLOCK}, // Clear on a keypad without Num Lock
    KeyCodeRow{75, KEY_KPSLASH},    KeyCodeRow{76, KEY_KPENTER},
    KeyCodeRow{78, KEY_KPMINUS},    KeyCodeRow{79, KEY_F18},
    KeyCodeRow{80, KEY_F19},        KeyCodeRow{81, KEY_KPEQUAL},
    KeyCodeRow{82, KEY_KP0},        KeyCodeRow{83, KEY_KP1},
    KeyCodeRow{84, KEY_KP2},        KeyCodeRow{85, KEY_KP3},
    KeyCodeRow{86, KEY_KP4},        KeyCodeRow{87, KEY_KP5},
    KeyCodeRow{88, KEY_KP6},        KeyCodeRow{89, KEY_KP7},
    KeyCodeRow{90, KEY_F20},        KeyCodeRow{91, KEY_KP8},
    KeyCodeRow{92, KEY_KP9},        KeyCodeRow{93, KEY_YEN},
    KeyCodeRow{94, KEY_RO},         KeyCodeRow{95, KEY_KPCOMMA}, // HID usage 0x85
    KeyCodeRow{96, KEY_F5},         KeyCodeRow{97, KEY_F6},
    KeyCodeRow{98, KEY_F7},         KeyCodeRow{99, KEY_F3},
    KeyCodeRow{100, KEY_F8},        KeyCodeRow{101, KEY_F9},
    KeyCodeRow{102, KEY_HANJA}, // Eisu: HID usage LANG2, which Linux names after the Korean key
    KeyCodeRow{103, KEY_F11},       KeyCodeRow{104, KEY_HANGEUL}, // Kana: HID usage LANG1
    KeyCodeRow{105, KEY_F13},       KeyCodeRow{106, KEY_F16},
    KeyCodeRow{107, KEY_F14},       KeyCodeRow{109, KEY_F10},
    KeyCodeRow{111, KEY_F12},       KeyCodeRow{113, KEY_F15},
    KeyCodeRow{114, KEY_INSERT}, // Help on keyboards that have no Insert
    KeyCodeRow{115, KEY_HOME},      KeyCodeRow{116, KEY_PAGEUP},
    KeyCodeRow{117, KEY_DELETE},    KeyCodeRow{118, KEY_F4},
    KeyCodeRow{119, KEY_END},       KeyCodeRow{120, KEY_F2},
    KeyCodeRow{121, KEY_PAGEDOWN},  KeyCodeRow{122, KEY_F1},
    KeyCodeRow{123, KEY_LEFT},      KeyCodeRow{124, KEY_RIGHT},
    KeyCodeRow{125, KEY_DOWN},      KeyCodeRow{126, KEY_UP},
};

const KeyCodeRow* rowOfEvdev(std::uint16_t evdevCode) {
    const auto row = std::ranges::find(keyCodeTable, evdevCode, &KeyCodeRow::evdevCode);
    return row == keyCodeTable.end() ? nullptr : &*row;
}

std::optional<std::uint16_t> unnamedEvdev(std::uint32_t keyCode) {
    const auto evdevCode = keyCode - keycode::unnamedBase;
    if (evdevCode == KEY_RESERVED || evdevCode > KEY_MAX)
        return std::nullopt;
    const auto unnamed = static_cast<std::uint16_t>(evdevCode);
    // A key with a name has that one code and no second.
    return rowOfEvdev(unnamed) == nullptr ? std::optional(unnamed) : std::nullopt;
}

} // namespace

std::optional<std::uint16_t> evdevFromKeyCode(std::uint32_t keyCode) {
    if (keyCode >= keycode::unnamedBase)
        return unnamedEvdev(keyCode);
    const auto row = std::ranges::find(keyCodeTable, keyCode, &KeyCodeRow::keyCode);
    return row == keyCodeTable.end() ? std::nullopt : std::optional(row->evdevCode);
}

std::uint32_t keyCodeFromEvdev(std::uint16_t evdevCode) {
    const auto* row = rowOfEvdev(evdevCode);
    return row != nullptr ? row->keyCode : keycode::unnamedBase + evdevCode;
}

} // namespace quorvane
