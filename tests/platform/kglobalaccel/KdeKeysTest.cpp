// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>
#include <testing/FakeKeyboardLayout.h>

#include <QKeySequence>
#include <gtest/gtest.h>

#include <KdeKeys.h>
#include <ostream>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto ctrl = modifier::control;
constexpr auto ctrlShift = modifier::control | modifier::shift;
constexpr auto all = modifier::control | modifier::shift | modifier::option | modifier::command;

void set(
    FakeKeyboardLayout& layout,
    std::uint32_t keyCode,
    const std::u16string& plain,
    const std::u16string& shifted) {
    layout.setKey(static_cast<std::uint16_t>(keyCode), plain);
    layout.setShifted(static_cast<std::uint16_t>(keyCode), shifted);
}

/// What xkeyboard-config has for these keys in the layouts "us", "de" and "ru".
FakeKeyboardLayout layoutOf(const QString& name) {
    FakeKeyboardLayout layout;
    set(layout, keycode::d, name == u"ru" ? u"в" : u"d", name == u"ru" ? u"В" : u"D");
    set(layout, keycode::digit1, u"1", u"!");
    set(layout, keycode::space, u" ", u" ");
    set(layout, keycode::keypadPlus, u"+", u"+");
    const bool isGerman = name == u"de";
    set(layout, keycode::z, isGerman ? u"y" : u"z", isGerman ? u"Y" : u"Z");
    set(layout, keycode::y, isGerman ? u"z" : u"y", isGerman ? u"Z" : u"Y");
    set(layout, keycode::digit7, u"7", isGerman ? u"/" : u"&");
    set(layout, keycode::semicolon, isGerman ? u"ö" : u";", isGerman ? u"Ö" : u":");
    set(layout, keycode::minus, isGerman ? u"ß" : u"-", isGerman ? u"?" : u"_");
    return layout;
}

struct Row {
    const char* layout;
    KeyChord chord;
    const char* sequence; ///< in the text that Qt's own QKeySequence reads
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.layout << ' ' << row.sequence;
}

class KdeKeyRow : public testing::TestWithParam<Row> {};

// The sequences are those that fired under KWin 5.27 when the keys were pressed there.
TEST_P(KdeKeyRow, SaysWhatTheKeysTypeAndBack) {
    const auto layout = layoutOf(QString::fromLatin1(GetParam().layout));
    const auto sequence = QKeySequence(QString::fromUtf8(GetParam().sequence));
    ASSERT_EQ(sequence.count(), 1);
    EXPECT_EQ(kdeKeyOf(GetParam().chord, layout), sequence[0].toCombined());
    EXPECT_EQ(chordOfKdeKey(sequence[0].toCombined(), layout), GetParam().chord);
}

INSTANTIATE_TEST_SUITE_P(
    Keys,
    KdeKeyRow,
    testing::Values(
        Row{"us", {keycode::d, ctrlShift | modifier::command}, "Ctrl+Shift+Meta+D"},
        Row{"us", {keycode::d, all}, "Ctrl+Alt+Shift+Meta+D"},
        Row{"us", {keycode::d, modifier::option}, "Alt+D"},
        Row{"us", {keycode::digit1, ctrl | modifier::option}, "Ctrl+Alt+1"},
        Row{"us", {keycode::digit1, ctrlShift}, "Ctrl+!"},
        Row{"us", {keycode::digit7, ctrlShift}, "Ctrl+&"},
        Row{"us", {keycode::space, ctrlShift}, "Ctrl+Shift+Space"},
        Row{"us", {keycode::f5, ctrlShift}, "Ctrl+Shift+F5"},
        Row{"us", {keycode::returnKey, ctrlShift}, "Ctrl+Shift+Return"},
        Row{"us", {keycode::keypadEnter, ctrl}, "Ctrl+Enter"},
        Row{"us", {keycode::keypadPlus, ctrl}, "Ctrl++"},
        Row{"us", {keycode::tab, ctrl}, "Ctrl+Tab"},
        Row{"us", {keycode::tab, ctrlShift}, "Ctrl+Backtab"},
        Row{"us", {keycode::upArrow, ctrl | modifier::command}, "Ctrl+Meta+Up"},
        Row{"us", {keycode::backspace, ctrl | modifier::command}, "Ctrl+Meta+Backspace"},
        Row{"us", {keycode::menu, ctrl | modifier::command}, "Ctrl+Meta+Menu"},
        Row{"us", {keycode::pause, modifier::option}, "Alt+Pause"},
        Row{"us", {keycode::z, ctrl}, "Ctrl+Z"},
        Row{"de", {keycode::z, ctrl}, "Ctrl+Y"},
        Row{"de", {keycode::y, ctrlShift}, "Ctrl+Shift+Z"},
        Row{"de", {keycode::digit7, ctrlShift}, "Ctrl+/"},
        Row{"de", {keycode::semicolon, ctrlShift}, "Ctrl+Shift+Ö"},
        Row{"de", {keycode::minus, ctrl}, "Ctrl+ß"},
        Row{"ru", {keycode::d, ctrlShift | modifier::command}, "Ctrl+Shift+Meta+D"}));

TEST(KdeKeys, HaveNoNumberForAKeyThatTypesNothing) {
    const auto layout = layoutOf(u"us"_s);
    EXPECT_EQ(kdeKeyOf({keycode::keypad5, ctrl}, layout), std::nullopt);
    EXPECT_EQ(kdeKeyOf({keycode::unnamedBase + 140, ctrl}, layout), std::nullopt);
}

TEST(KdeKeys, AreNoShortcutOfOursWithoutModifiersOrOnOtherKeyboards) {
    const auto layout = layoutOf(u"us"_s);
    EXPECT_EQ(chordOfKdeKey(Qt::Key_F5, layout), std::nullopt);
    EXPECT_EQ(chordOfKdeKey((Qt::CTRL | Qt::Key_Odiaeresis).toCombined(), layout), std::nullopt);
    EXPECT_EQ(chordOfKdeKey((Qt::CTRL | Qt::Key_Calculator).toCombined(), layout), std::nullopt);
    EXPECT_EQ(chordOfKdeKey(static_cast<int>(Qt::CTRL), layout), std::nullopt);
}

} // namespace
} // namespace quorvane
