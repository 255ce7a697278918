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

constexpr std::array keyCodeTable{
    KeyCodeRow{keycode::a, KEY_A},
    KeyCodeRow{keycode::s, KEY_S},
    KeyCodeRow{keycode::d, KEY_D},
    KeyCodeRow{keycode::f, KEY_F},
    KeyCodeRow{keycode::h, KEY_H},
    KeyCodeRow{keycode::g, KEY_G},
    KeyCodeRow{keycode::z, KEY_Z},
    KeyCodeRow{keycode::x, KEY_X},
    KeyCodeRow{keycode::c, KEY_C},
    KeyCodeRow{keycode::v, KEY_V},
    KeyCodeRow{keycode::iso, KEY_102ND},
    KeyCodeRow{keycode::b, KEY_B},
    KeyCodeRow{keycode::q, KEY_Q},
    KeyCodeRow{keycode::w, KEY_W},
    KeyCodeRow{keycode::e, KEY_E},
    KeyCodeRow{keycode::r, KEY_R},
    KeyCodeRow{keycode::y, KEY_Y},
    KeyCodeRow{keycode::t, KEY_T},
    KeyCodeRow{keycode::digit1, KEY_1},
    KeyCodeRow{keycode::digit2, KEY_2},
    KeyCodeRow{keycode::digit3, KEY_3},
    KeyCodeRow{keycode::digit4, KEY_4},
    KeyCodeRow{keycode::digit6, KEY_6},
    KeyCodeRow{keycode::digit5, KEY_5},
    KeyCodeRow{keycode::equal, KEY_EQUAL},
    KeyCodeRow{keycode::digit9, KEY_9},
    KeyCodeRow{keycode::digit7, KEY_7},
    KeyCodeRow{keycode::minus, KEY_MINUS},
    KeyCodeRow{keycode::digit8, KEY_8},
    KeyCodeRow{keycode::digit0, KEY_0},
    KeyCodeRow{keycode::rightBracket, KEY_RIGHTBRACE},
    KeyCodeRow{keycode::o, KEY_O},
    KeyCodeRow{keycode::u, KEY_U},
    KeyCodeRow{keycode::leftBracket, KEY_LEFTBRACE},
    KeyCodeRow{keycode::i, KEY_I},
    KeyCodeRow{keycode::p, KEY_P},
    KeyCodeRow{keycode::returnKey, KEY_ENTER},
    KeyCodeRow{keycode::l, KEY_L},
    KeyCodeRow{keycode::j, KEY_J},
    KeyCodeRow{keycode::apostrophe, KEY_APOSTROPHE},
    KeyCodeRow{keycode::k, KEY_K},
    KeyCodeRow{keycode::semicolon, KEY_SEMICOLON},
    KeyCodeRow{keycode::backslash, KEY_BACKSLASH},
    KeyCodeRow{keycode::comma, KEY_COMMA},
    KeyCodeRow{keycode::slash, KEY_SLASH},
    KeyCodeRow{keycode::n, KEY_N},
    KeyCodeRow{keycode::m, KEY_M},
    KeyCodeRow{keycode::period, KEY_DOT},
    KeyCodeRow{keycode::tab, KEY_TAB},
    KeyCodeRow{keycode::space, KEY_SPACE},
    KeyCodeRow{keycode::grave, KEY_GRAVE},
    KeyCodeRow{keycode::backspace, KEY_BACKSPACE},
    KeyCodeRow{keycode::escape, KEY_ESC},
    KeyCodeRow{keycode::rightCommand, KEY_RIGHTMETA},
    KeyCodeRow{keycode::leftCommand, KEY_LEFTMETA},
    KeyCodeRow{keycode::leftShift, KEY_LEFTSHIFT},
    KeyCodeRow{keycode::capsLock, KEY_CAPSLOCK},
    KeyCodeRow{keycode::leftOption, KEY_LEFTALT},
    KeyCodeRow{keycode::leftControl, KEY_LEFTCTRL},
    KeyCodeRow{keycode::rightShift, KEY_RIGHTSHIFT},
    KeyCodeRow{keycode::rightOption, KEY_RIGHTALT},
    KeyCodeRow{keycode::rightControl, KEY_RIGHTCTRL},
    KeyCodeRow{keycode::function, KEY_FN},
    KeyCodeRow{keycode::f17, KEY_F17},
    KeyCodeRow{keycode::keypadDecimal, KEY_KPDOT},
    KeyCodeRow{keycode::keypadMultiply, KEY_KPASTERISK},
    KeyCodeRow{keycode::keypadPlus, KEY_KPPLUS},
    KeyCodeRow{keycode::numLock, KEY_NUMLOCK},
    KeyCodeRow{keycode::keypadDivide, KEY_KPSLASH},
    KeyCodeRow{keycode::keypadEnter, KEY_KPENTER},
    KeyCodeRow{keycode::keypadMinus, KEY_KPMINUS},
    KeyCodeRow{keycode::f18, KEY_F18},
    KeyCodeRow{keycode::f19, KEY_F19},
    KeyCodeRow{keycode::keypadEquals, KEY_KPEQUAL},
    KeyCodeRow{keycode::keypad0, KEY_KP0},
    KeyCodeRow{keycode::keypad1, KEY_KP1},
    KeyCodeRow{keycode::keypad2, KEY_KP2},
    KeyCodeRow{keycode::keypad3, KEY_KP3},
    KeyCodeRow{keycode::keypad4, KEY_KP4},
    KeyCodeRow{keycode::keypad5, KEY_KP5},
    KeyCodeRow{keycode::keypad6, KEY_KP6},
    KeyCodeRow{keycode::keypad7, KEY_KP7},
    KeyCodeRow{keycode::f20, KEY_F20},
    KeyCodeRow{keycode::keypad8, KEY_KP8},
    KeyCodeRow{keycode::keypad9, KEY_KP9},
    KeyCodeRow{keycode::yen, KEY_YEN},
    KeyCodeRow{keycode::underscore, KEY_RO},
    KeyCodeRow{keycode::keypadComma, KEY_KPCOMMA},
    KeyCodeRow{keycode::f5, KEY_F5},
    KeyCodeRow{keycode::f6, KEY_F6},
    KeyCodeRow{keycode::f7, KEY_F7},
    KeyCodeRow{keycode::f3, KEY_F3},
    KeyCodeRow{keycode::f8, KEY_F8},
    KeyCodeRow{keycode::f9, KEY_F9},
    KeyCodeRow{keycode::eisu, KEY_HANJA},
    KeyCodeRow{keycode::f11, KEY_F11},
    KeyCodeRow{keycode::kana, KEY_HANGEUL},
    KeyCodeRow{keycode::f13, KEY_F13},
    KeyCodeRow{keycode::f16, KEY_F16},
    KeyCodeRow{keycode::f14, KEY_F14},
    KeyCodeRow{keycode::f10, KEY_F10},
    KeyCodeRow{keycode::f12, KEY_F12},
    KeyCodeRow{keycode::f15, KEY_F15},
    KeyCodeRow{keycode::insert, KEY_INSERT},
    KeyCodeRow{keycode::home, KEY_HOME},
    KeyCodeRow{keycode::pageUp, KEY_PAGEUP},
    KeyCodeRow{keycode::forwardDelete, KEY_DELETE},
    KeyCodeRow{keycode::f4, KEY_F4},
    KeyCodeRow{keycode::end, KEY_END},
    KeyCodeRow{keycode::f2, KEY_F2},
    KeyCodeRow{keycode::pageDown, KEY_PAGEDOWN},
    KeyCodeRow{keycode::f1, KEY_F1},
    KeyCodeRow{keycode::leftArrow, KEY_LEFT},
    KeyCodeRow{keycode::rightArrow, KEY_RIGHT},
    KeyCodeRow{keycode::downArrow, KEY_DOWN},
    KeyCodeRow{keycode::upArrow, KEY_UP},
};

static_assert(keycode::printScreen == keycode::unnamedBase + KEY_SYSRQ);
static_assert(keycode::pause == keycode::unnamedBase + KEY_PAUSE);
static_assert(keycode::menu == keycode::unnamedBase + KEY_COMPOSE);

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

std::optional<std::uint32_t> scanCodeFromKeyCode(std::uint32_t keyCode) {
    const auto evdevCode = evdevFromKeyCode(keyCode);
    return evdevCode ? std::optional(std::uint32_t{*evdevCode} + evdevOffset) : std::nullopt;
}

std::optional<std::uint32_t> keyCodeFromScanCode(std::uint32_t scanCode) {
    if (scanCode <= evdevOffset || scanCode - evdevOffset > KEY_MAX)
        return std::nullopt;
    return keyCodeFromEvdev(static_cast<std::uint16_t>(scanCode - evdevOffset));
}

} // namespace quorvane
