// SPDX-License-Identifier: MIT
#include "Accelerator.h"

#include <platform/KeyCodes.h>
#include <testing/FakeKeyboardLayout.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto threeModifiers = modifier::control | modifier::shift | modifier::command;

/// The keys of a layout that differ in kind: letter, sign, digit, and a dead or foreign one.
class AcceleratorTest : public testing::Test {
protected:
    void use(const std::vector<std::pair<std::uint32_t, std::u16string>>& keys) {
        for (const auto& [keyCode, characters] : keys)
            layout.setKey(static_cast<std::uint16_t>(keyCode), characters);
    }

    [[nodiscard]] QString textOf(std::uint32_t keyCode) const {
        const auto accelerator = Accelerator::of({keyCode, modifier::command}, layout);
        return accelerator ? accelerator->text() : QString();
    }

    [[nodiscard]] std::optional<KeyChord> chordOf(QStringView text) const {
        const auto accelerator = Accelerator::parse(text);
        return accelerator ? accelerator->chord(layout) : std::nullopt;
    }

    FakeKeyboardLayout layout;
};

class AcceleratorOnAnsi : public AcceleratorTest {
protected:
    AcceleratorOnAnsi() {
        use({{keycode::d, u"d"}, {keycode::digit2, u"2"}, {keycode::slash, u"/"}});
    }
};

TEST_F(AcceleratorOnAnsi, IsWrittenAsTheDesktopWritesIt) {
    const auto text = [this](KeyChord chord) {
        return Accelerator::of(chord, layout)->text();
    };
    EXPECT_EQ(text({keycode::d, threeModifiers}), u"<Control><Shift><Super>d"_s);
    EXPECT_EQ(text({keycode::digit2, modifier::option}), u"<Alt>2"_s);
    EXPECT_EQ(text({keycode::slash, modifier::control}), u"<Control>slash"_s);
    EXPECT_EQ(text({keycode::f5, modifier::control}), u"<Control>F5"_s);
    EXPECT_EQ(text({keycode::space, modifier::command}), u"<Super>space"_s);
    EXPECT_EQ(text({keycode::leftArrow, modifier::command}), u"<Super>Left"_s);
    EXPECT_EQ(text({keycode::d, modifier::control | modifier::capsLock}), u"<Control>d"_s);
}

TEST_F(AcceleratorOnAnsi, IsReadInAllTheWaysInWhichItIsWritten) {
    const KeyChord expected{keycode::d, threeModifiers};
    EXPECT_EQ(chordOf(u"<Control><Shift><Super>d"), expected);
    EXPECT_EQ(chordOf(u"<Primary><Shift><Super>D"), expected);
    EXPECT_EQ(chordOf(u"<super><shft><ctrl>d"), expected);
    EXPECT_EQ(chordOf(u"<Mod4><Shift><Ctl>d"), expected);
    EXPECT_EQ(chordOf(u"<Mod1>F4"), (KeyChord{keycode::f4, modifier::option}));
    EXPECT_EQ(chordOf(u"<Super>Above_Tab"), (KeyChord{keycode::grave, modifier::command}));
    EXPECT_EQ(chordOf(u"<Super>0x28"), (KeyChord{keycode::d, modifier::command}));
    EXPECT_EQ(chordOf(u"Print"), (KeyChord{keycode::printScreen, modifier::none}));
}

TEST_F(AcceleratorOnAnsi, IsNoneForNoShortcutAndForNonsense) {
    for (const auto& text :
         {u""_s,
          u"disabled"_s,
          u"<Super>"_s,
          u"<Hyper>d"_s,
          u"<Super"_s,
          u"<>d"_s,
          u"<Super>nosuchkey"_s,
          u"<Super>0x"_s,
          u"<Super>0xzz"_s,
          u"/org/gnome/"_s,
          u"<Super>XF86AudioPlay"_s})
        EXPECT_EQ(chordOf(text), std::nullopt) << text.toStdString();
    EXPECT_EQ(chordOf(QString(10000, u'd')), std::nullopt);
    EXPECT_EQ(Accelerator::of({keycode::unnamedBase, modifier::control}, layout), std::nullopt);
}

TEST_F(AcceleratorTest, NamesTheLetterThatTheKeyHasInTheLayout) {
    use({{keycode::a, u"q"}, {keycode::digit2, u"é"}, {keycode::d, u"D"}});
    EXPECT_EQ(textOf(keycode::a), u"<Super>q"_s);
    EXPECT_EQ(textOf(keycode::digit2), u"<Super>eacute"_s);
    EXPECT_EQ(textOf(keycode::d), u"<Super>d"_s);
    EXPECT_EQ(chordOf(u"<Super>q"), (KeyChord{keycode::a, modifier::command}));
    EXPECT_EQ(chordOf(u"<Super>eacute"), (KeyChord{keycode::digit2, modifier::command}));
    // Its digits are typed with Shift; the desktop means the same keys.
    EXPECT_EQ(chordOf(u"<Super>2"), (KeyChord{keycode::digit2, modifier::command}));
}

TEST_F(AcceleratorTest, NamesTheLatinLetterOfAKeyThatTypesAnotherScript) {
    use({{keycode::d, u"в"}, {keycode::comma, u"б"}});
    EXPECT_EQ(textOf(keycode::d), u"<Super>d"_s);
    EXPECT_EQ(chordOf(u"<Super>d"), (KeyChord{keycode::d, modifier::command}));
    // The sign is elsewhere in such a layout, and would be looked for there.
    EXPECT_EQ(textOf(keycode::comma), u"<Super>0x3b"_s);
    EXPECT_EQ(chordOf(u"<Super>0x3b"), (KeyChord{keycode::comma, modifier::command}));
}

TEST_F(AcceleratorTest, NamesThePlaceOfAKeyThatTypesNothing) {
    EXPECT_EQ(textOf(keycode::equal), u"<Super>0x15"_s); // a dead accent, on German keyboards
    EXPECT_EQ(chordOf(u"<Super>0x15"), (KeyChord{keycode::equal, modifier::command}));
}

TEST_F(AcceleratorTest, TakesTheLayoutForAnAnsiOneWhereItCannotBeAsked) {
    layout.setAvailable(false);
    EXPECT_EQ(textOf(keycode::d), u"<Super>d"_s);
    EXPECT_EQ(textOf(keycode::comma), u"<Super>comma"_s);
    EXPECT_EQ(chordOf(u"<Super>comma"), (KeyChord{keycode::comma, modifier::command}));
}

} // namespace
} // namespace quorvane
