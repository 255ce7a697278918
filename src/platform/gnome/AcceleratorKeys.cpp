// SPDX-License-Identifier: MIT
#include "AcceleratorKeys.h"

#include <platform/KeyCodes.h>

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <array>

namespace quorvane::acceleratorkeys {

namespace {

struct NamedKey {
    std::uint32_t keyCode;
    std::uint32_t keysym;
};

constexpr std::array namedKeys{
    NamedKey{keycode::space, XKB_KEY_space},
    NamedKey{keycode::returnKey, XKB_KEY_Return},
    NamedKey{keycode::tab, XKB_KEY_Tab},
    NamedKey{keycode::backspace, XKB_KEY_BackSpace},
    NamedKey{keycode::escape, XKB_KEY_Escape},
    NamedKey{keycode::insert, XKB_KEY_Insert},
    NamedKey{keycode::forwardDelete, XKB_KEY_Delete},
    NamedKey{keycode::home, XKB_KEY_Home},
    NamedKey{keycode::end, XKB_KEY_End},
    NamedKey{keycode::pageUp, XKB_KEY_Page_Up},
    NamedKey{keycode::pageDown, XKB_KEY_Page_Down},
    NamedKey{keycode::leftArrow, XKB_KEY_Left},
    NamedKey{keycode::rightArrow, XKB_KEY_Right},
    NamedKey{keycode::downArrow, XKB_KEY_Down},
    NamedKey{keycode::upArrow, XKB_KEY_Up},
    NamedKey{keycode::menu, XKB_KEY_Menu},
    NamedKey{keycode::pause, XKB_KEY_Pause},
    NamedKey{keycode::printScreen, XKB_KEY_Print},
    NamedKey{keycode::f1, XKB_KEY_F1},
    NamedKey{keycode::f2, XKB_KEY_F2},
    NamedKey{keycode::f3, XKB_KEY_F3},
    NamedKey{keycode::f4, XKB_KEY_F4},
    NamedKey{keycode::f5, XKB_KEY_F5},
    NamedKey{keycode::f6, XKB_KEY_F6},
    NamedKey{keycode::f7, XKB_KEY_F7},
    NamedKey{keycode::f8, XKB_KEY_F8},
    NamedKey{keycode::f9, XKB_KEY_F9},
    NamedKey{keycode::f10, XKB_KEY_F10},
    NamedKey{keycode::f11, XKB_KEY_F11},
    NamedKey{keycode::f12, XKB_KEY_F12},
    NamedKey{keycode::keypad0, XKB_KEY_KP_0},
    NamedKey{keycode::keypad1, XKB_KEY_KP_1},
    NamedKey{keycode::keypad2, XKB_KEY_KP_2},
    NamedKey{keycode::keypad3, XKB_KEY_KP_3},
    NamedKey{keycode::keypad4, XKB_KEY_KP_4},
    NamedKey{keycode::keypad5, XKB_KEY_KP_5},
    NamedKey{keycode::keypad6, XKB_KEY_KP_6},
    NamedKey{keycode::keypad7, XKB_KEY_KP_7},
    NamedKey{keycode::keypad8, XKB_KEY_KP_8},
    NamedKey{keycode::keypad9, XKB_KEY_KP_9},
    NamedKey{keycode::keypadPlus, XKB_KEY_KP_Add},
    NamedKey{keycode::keypadMinus, XKB_KEY_KP_Subtract},
    NamedKey{keycode::keypadMultiply, XKB_KEY_KP_Multiply},
    NamedKey{keycode::keypadDivide, XKB_KEY_KP_Divide},
    NamedKey{keycode::keypadEnter, XKB_KEY_KP_Enter}};

} // namespace

std::optional<std::uint32_t> keysymOf(std::uint32_t keyCode) {
    const auto* key = std::ranges::find(namedKeys, keyCode, &NamedKey::keyCode);
    return key == namedKeys.end() ? std::nullopt : std::optional(key->keysym);
}

std::optional<std::uint32_t> keyCodeOf(std::uint32_t keysym) {
    const auto* key = std::ranges::find(namedKeys, keysym, &NamedKey::keysym);
    return key == namedKeys.end() ? std::nullopt : std::optional(key->keyCode);
}

} // namespace quorvane::acceleratorkeys
