// SPDX-License-Identifier: MIT
#include <platform/AnsiKeys.h>
#include <platform/KeyCodes.h>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr std::array keys{
    AnsiKey{keycode::grave, U'`'},
    AnsiKey{keycode::digit1, U'1'},
    AnsiKey{keycode::digit2, U'2'},
    AnsiKey{keycode::digit3, U'3'},
    AnsiKey{keycode::digit4, U'4'},
    AnsiKey{keycode::digit5, U'5'},
    AnsiKey{keycode::digit6, U'6'},
    AnsiKey{keycode::digit7, U'7'},
    AnsiKey{keycode::digit8, U'8'},
    AnsiKey{keycode::digit9, U'9'},
    AnsiKey{keycode::digit0, U'0'},
    AnsiKey{keycode::minus, U'-'},
    AnsiKey{keycode::equal, U'='},
    AnsiKey{keycode::q, U'q'},
    AnsiKey{keycode::w, U'w'},
    AnsiKey{keycode::e, U'e'},
    AnsiKey{keycode::r, U'r'},
    AnsiKey{keycode::t, U't'},
    AnsiKey{keycode::y, U'y'},
    AnsiKey{keycode::u, U'u'},
    AnsiKey{keycode::i, U'i'},
    AnsiKey{keycode::o, U'o'},
    AnsiKey{keycode::p, U'p'},
    AnsiKey{keycode::leftBracket, U'['},
    AnsiKey{keycode::rightBracket, U']'},
    AnsiKey{keycode::backslash, U'\\'},
    AnsiKey{keycode::a, U'a'},
    AnsiKey{keycode::s, U's'},
    AnsiKey{keycode::d, U'd'},
    AnsiKey{keycode::f, U'f'},
    AnsiKey{keycode::g, U'g'},
    AnsiKey{keycode::h, U'h'},
    AnsiKey{keycode::j, U'j'},
    AnsiKey{keycode::k, U'k'},
    AnsiKey{keycode::l, U'l'},
    AnsiKey{keycode::semicolon, U';'},
    AnsiKey{keycode::apostrophe, U'\''},
    AnsiKey{keycode::iso, U'<'},
    AnsiKey{keycode::z, U'z'},
    AnsiKey{keycode::x, U'x'},
    AnsiKey{keycode::c, U'c'},
    AnsiKey{keycode::v, U'v'},
    AnsiKey{keycode::b, U'b'},
    AnsiKey{keycode::n, U'n'},
    AnsiKey{keycode::m, U'm'},
    AnsiKey{keycode::comma, U','},
    AnsiKey{keycode::period, U'.'},
    AnsiKey{keycode::slash, U'/'}};

} // namespace

std::span<const AnsiKey> ansiKeys() {
    return keys;
}

char32_t ansiCharacterOf(std::uint32_t keyCode) {
    const auto* key = std::ranges::find(keys, keyCode, &AnsiKey::keyCode);
    return key == keys.end() ? 0 : key->character;
}

} // namespace quorvane
