// SPDX-License-Identifier: MIT
#include <platform/PasteTarget.h>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    QStringList classes;
    PasteKeys keys;
    PasteSource source = PasteSource::Clipboard;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.classes.join(u'/').toStdString();
}

class PasteTargetOfAWindow : public testing::TestWithParam<Row> {};

TEST_P(PasteTargetOfAWindow, FollowsFromItsClass) {
    const auto& row = GetParam();
    EXPECT_EQ(pasteTargetFor(row.classes), (PasteTarget{row.keys, row.source}));
}

using enum PasteKeys;
constexpr auto primary = PasteSource::Selection;

// WM_CLASS as xprop shows it for the programs, app_ids as swaymsg does.
INSTANTIATE_TEST_SUITE_P(
    Terminals,
    PasteTargetOfAWindow,
    testing::Values(
        Row{{u"xterm"_s, u"XTerm"_s}, ShiftInsert, primary},
        Row{{u"xterm"_s, u"UXTerm"_s}, ShiftInsert, primary},
        Row{{u"renamed"_s, u"XTerm"_s}, ShiftInsert, primary},
        Row{{u"urxvt"_s, u"URxvt"_s}, ShiftInsert, primary},
        Row{{u"rxvt"_s, u"XTerm"_s}, ShiftInsert, primary},
        Row{{u"st-256color"_s, u"st-256color"_s}, ShiftInsert, primary},
        Row{{u"st"_s, u"st"_s}, ShiftInsert, primary},
        Row{{u"gnome-terminal-server"_s, u"Gnome-terminal"_s}, ShiftInsert, primary},
        Row{{u"xfce4-terminal"_s, u"Xfce4-terminal"_s}, ControlShiftV},
        Row{{u"org.gnome.Terminal"_s}, ControlShiftV},
        Row{{u"konsole"_s, u"konsole"_s}, ControlShiftV},
        Row{{u"org.kde.konsole"_s}, ControlShiftV},
        Row{{u"kitty"_s, u"kitty"_s}, ShiftInsert, primary},
        Row{{u"Alacritty"_s, u"Alacritty"_s}, ControlShiftV},
        Row{{u"terminator"_s, u"Terminator"_s}, ShiftInsert, primary},
        Row{{u"tilix"_s, u"Tilix"_s}, ControlShiftV},
        Row{{u"guake"_s, u"Guake"_s}, ControlShiftV},
        Row{{u"sakura"_s, u"Sakura"_s}, ControlShiftV},
        Row{{u"cool-retro-term"_s, u"cool-retro-term"_s}, ControlShiftV},
        Row{{u"xterm"_s, u"mlterm"_s}, ShiftInsert, primary},
        Row{{u"foot"_s}, ControlShiftV},
        Row{{u"footclient"_s}, ControlShiftV}));

INSTANTIATE_TEST_SUITE_P(
    OtherPrograms,
    PasteTargetOfAWindow,
    testing::Values(
        Row{{u"emacs"_s, u"Emacs"_s}, ShiftInsert},
        Row{{u"mousepad"_s, u"Mousepad"_s}, ControlV},
        Row{{u"Navigator"_s, u"firefox-esr"_s}, ControlV},
        Row{{u"libreoffice"_s, u"libreoffice-writer"_s}, ControlV},
        Row{{u""_s, u""_s}, ControlV},
        Row{{}, ControlV}));

// A short name inside a longer one, or at its start, is another program.
INSTANTIATE_TEST_SUITE_P(
    NamesThatOnlyLookAlike,
    PasteTargetOfAWindow,
    testing::Values(
        Row{{u"stellarium"_s, u"stellarium"_s}, ControlV},
        Row{{u"footage"_s, u"Footage"_s}, ControlV},
        Row{{u"xtermcontrol"_s}, ControlV},
        Row{{u"konsolekalendar"_s}, ControlV},
        Row{{u"org.kde.konsole.help"_s}, ControlV}));

TEST(PasteTargetWithoutLatinV, IsShiftInsertAndTheSelectionThatItPastes) {
    constexpr auto clipboard = PasteSource::Clipboard;
    EXPECT_EQ(withoutLatinV({ControlV, clipboard}), (PasteTarget{ShiftInsert, clipboard}));
    EXPECT_EQ(withoutLatinV({ControlShiftV, clipboard}), (PasteTarget{ShiftInsert, primary}));
    EXPECT_EQ(withoutLatinV({ShiftInsert, clipboard}), (PasteTarget{ShiftInsert, clipboard}));
    EXPECT_EQ(withoutLatinV({ShiftInsert, primary}), (PasteTarget{ShiftInsert, primary}));
}

} // namespace

} // namespace quorvane
