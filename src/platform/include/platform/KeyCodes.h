// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace quorvane {

/// Key codes name positions on a keyboard, not characters: `d` is the key that carries D on an ANSI
/// keyboard. Stored shortcuts hold them. In their order, roughly that of an ANSI keyboard's rows.
namespace keycode {

inline constexpr std::uint32_t a = 0;
inline constexpr std::uint32_t s = 1;
inline constexpr std::uint32_t d = 2;
inline constexpr std::uint32_t f = 3;
inline constexpr std::uint32_t h = 4;
inline constexpr std::uint32_t g = 5;
inline constexpr std::uint32_t z = 6;
inline constexpr std::uint32_t x = 7;
inline constexpr std::uint32_t c = 8;
inline constexpr std::uint32_t v = 9;
inline constexpr std::uint32_t iso = 10; ///< between left Shift and Z on ISO keyboards
inline constexpr std::uint32_t b = 11;
inline constexpr std::uint32_t q = 12;
inline constexpr std::uint32_t w = 13;
inline constexpr std::uint32_t e = 14;
inline constexpr std::uint32_t r = 15;
inline constexpr std::uint32_t y = 16;
inline constexpr std::uint32_t t = 17;
inline constexpr std::uint32_t digit1 = 18;
inline constexpr std::uint32_t digit2 = 19;
inline constexpr std::uint32_t digit3 = 20;
inline constexpr std::uint32_t digit4 = 21;
inline constexpr std::uint32_t digit6 = 22;
inline constexpr std::uint32_t digit5 = 23;
inline constexpr std::uint32_t equal = 24;
inline constexpr std::uint32_t digit9 = 25;
inline constexpr std::uint32_t digit7 = 26;
inline constexpr std::uint32_t minus = 27;
inline constexpr std::uint32_t digit8 = 28;
inline constexpr std::uint32_t digit0 = 29;
inline constexpr std::uint32_t rightBracket = 30;
inline constexpr std::uint32_t o = 31;
inline constexpr std::uint32_t u = 32;
inline constexpr std::uint32_t leftBracket = 33;
inline constexpr std::uint32_t i = 34;
inline constexpr std::uint32_t p = 35;
inline constexpr std::uint32_t returnKey = 36;
inline constexpr std::uint32_t l = 37;
inline constexpr std::uint32_t j = 38;
inline constexpr std::uint32_t apostrophe = 39;
inline constexpr std::uint32_t k = 40;
inline constexpr std::uint32_t semicolon = 41;
inline constexpr std::uint32_t backslash = 42;
inline constexpr std::uint32_t comma = 43;
inline constexpr std::uint32_t slash = 44;
inline constexpr std::uint32_t n = 45;
inline constexpr std::uint32_t m = 46;
inline constexpr std::uint32_t period = 47;
inline constexpr std::uint32_t tab = 48;
inline constexpr std::uint32_t space = 49;
inline constexpr std::uint32_t grave = 50;
inline constexpr std::uint32_t backspace = 51;
inline constexpr std::uint32_t escape = 53;
inline constexpr std::uint32_t rightCommand = 54;
inline constexpr std::uint32_t leftCommand = 55;
inline constexpr std::uint32_t leftShift = 56;
inline constexpr std::uint32_t capsLock = 57;
inline constexpr std::uint32_t leftOption = 58;
inline constexpr std::uint32_t leftControl = 59;
inline constexpr std::uint32_t rightShift = 60;
inline constexpr std::uint32_t rightOption = 61;
inline constexpr std::uint32_t rightControl = 62;
inline constexpr std::uint32_t function = 63;
inline constexpr std::uint32_t f17 = 64;
inline constexpr std::uint32_t keypadDecimal = 65;
inline constexpr std::uint32_t keypadMultiply = 67;
inline constexpr std::uint32_t keypadPlus = 69;
inline constexpr std::uint32_t numLock = 71; ///< Clear on a keypad without Num Lock
inline constexpr std::uint32_t keypadDivide = 75;
inline constexpr std::uint32_t keypadEnter = 76;
inline constexpr std::uint32_t keypadMinus = 78;
inline constexpr std::uint32_t f18 = 79;
inline constexpr std::uint32_t f19 = 80;
inline constexpr std::uint32_t keypadEquals = 81;
inline constexpr std::uint32_t keypad0 = 82;
inline constexpr std::uint32_t keypad1 = 83;
inline constexpr std::uint32_t keypad2 = 84;
inline constexpr std::uint32_t keypad3 = 85;
inline constexpr std::uint32_t keypad4 = 86;
inline constexpr std::uint32_t keypad5 = 87;
inline constexpr std::uint32_t keypad6 = 88;
inline constexpr std::uint32_t keypad7 = 89;
inline constexpr std::uint32_t f20 = 90;
inline constexpr std::uint32_t keypad8 = 91;
inline constexpr std::uint32_t keypad9 = 92;
inline constexpr std::uint32_t yen = 93;
inline constexpr std::uint32_t underscore = 94;
inline constexpr std::uint32_t keypadComma = 95; ///< HID usage 0x85
inline constexpr std::uint32_t f5 = 96;
inline constexpr std::uint32_t f6 = 97;
inline constexpr std::uint32_t f7 = 98;
inline constexpr std::uint32_t f3 = 99;
inline constexpr std::uint32_t f8 = 100;
inline constexpr std::uint32_t f9 = 101;
inline constexpr std::uint32_t eisu =
    102; ///< HID usage LANG2, which Linux names after the Korean key
inline constexpr std::uint32_t f11 = 103;
inline constexpr std::uint32_t kana = 104; ///< HID usage LANG1
inline constexpr std::uint32_t f13 = 105;
inline constexpr std::uint32_t f16 = 106;
inline constexpr std::uint32_t f14 = 107;
inline constexpr std::uint32_t f10 = 109;
inline constexpr std::uint32_t f12 = 111;
inline constexpr std::uint32_t f15 = 113;
inline constexpr std::uint32_t insert = 114; ///< Help on keyboards that have no Insert
inline constexpr std::uint32_t home = 115;
inline constexpr std::uint32_t pageUp = 116;
inline constexpr std::uint32_t forwardDelete = 117;
inline constexpr std::uint32_t f4 = 118;
inline constexpr std::uint32_t end = 119;
inline constexpr std::uint32_t f2 = 120;
inline constexpr std::uint32_t pageDown = 121;
inline constexpr std::uint32_t f1 = 122;
inline constexpr std::uint32_t leftArrow = 123;
inline constexpr std::uint32_t rightArrow = 124;
inline constexpr std::uint32_t downArrow = 125;
inline constexpr std::uint32_t upArrow = 126;

/// Keys without a code of their own have this plus their evdev code.
inline constexpr std::uint32_t unnamedBase = 0x100;

inline constexpr std::uint32_t printScreen = unnamedBase + 99;
inline constexpr std::uint32_t pause = unnamedBase + 119;
inline constexpr std::uint32_t menu = unnamedBase + 127;

} // namespace keycode

/// The kernel's code (linux/input-event-codes.h) for a key code; none for a code that names no key.
[[nodiscard]] std::optional<std::uint16_t> evdevFromKeyCode(std::uint32_t keyCode);

/// The inverse: every evdev code has exactly one key code.
[[nodiscard]] std::uint32_t keyCodeFromEvdev(std::uint16_t evdevCode);

/// Scan codes, by which X11 and the keymaps of Wayland number the keys, are the kernel's codes plus
/// this (XKB's evdev rules): the X protocol keeps the numbers below for itself.
inline constexpr std::uint16_t evdevOffset = 8;

/// None for a code that names no key.
[[nodiscard]] std::optional<std::uint32_t> scanCodeFromKeyCode(std::uint32_t keyCode);

/// None for a number that no key has, as in events that come from no keyboard.
[[nodiscard]] std::optional<std::uint32_t> keyCodeFromScanCode(std::uint32_t scanCode);

} // namespace quorvane
