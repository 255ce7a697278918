// SPDX-License-Identifier: MIT
#include <platform/PasteTarget.h>

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

enum class Match {
    Name,    ///< the whole name, or the last part of a reverse domain name
    Fragment ///< anywhere in the name
};

struct PasteTargetRow {
    QStringView name;
    Match match;
    PasteTarget target;
};

constexpr PasteTarget shiftInsertFromSelection{PasteKeys::ShiftInsert, PasteSource::Selection};
constexpr PasteTarget shiftInsert{PasteKeys::ShiftInsert, PasteSource::Clipboard};
constexpr PasteTarget controlShiftV{PasteKeys::ControlShiftV, PasteSource::Clipboard};

// The first row that fits decides: a name that is known comes before a fragment of one.
constexpr std::array pasteTargetTable{
    // Ctrl+V is a literal for the shell; the default translations bind Shift+Insert to PRIMARY.
    PasteTargetRow{u"xterm", Match::Name, shiftInsertFromSelection},
    // Shift+Insert pastes PRIMARY; there is no key for the clipboard without an extension.
    PasteTargetRow{u"urxvt", Match::Name, shiftInsertFromSelection},
    // Shift+Insert is "selpaste"; the class is the terminal type unless the user sets one.
    PasteTargetRow{u"st", Match::Name, shiftInsertFromSelection},
    PasteTargetRow{u"st-256color", Match::Name, shiftInsertFromSelection},
    // Ctrl+V scrolls; Shift+Insert yanks, which takes the clipboard first.
    PasteTargetRow{u"emacs", Match::Name, shiftInsert},
    // Ctrl+V is a literal for the shell; Ctrl+Shift+V pastes only while a Latin layout is in use.
    PasteTargetRow{u"terminator", Match::Name, shiftInsertFromSelection},
    PasteTargetRow{u"kitty", Match::Name, shiftInsertFromSelection},
    // Its Ctrl+Shift+V is off until it has asked a new clipboard what it holds.
    PasteTargetRow{u"gnome-terminal-server", Match::Name, shiftInsertFromSelection},
    // Ctrl+V is a literal for the shell.
    PasteTargetRow{u"konsole", Match::Name, controlShiftV},
    PasteTargetRow{u"tilix", Match::Name, controlShiftV},
    PasteTargetRow{u"guake", Match::Name, controlShiftV},
    PasteTargetRow{u"alacritty", Match::Name, controlShiftV},
    PasteTargetRow{u"sakura", Match::Name, controlShiftV},
    PasteTargetRow{u"cool-retro-term", Match::Name, controlShiftV},
    // The same, tried on Wayland, where alone it runs; its server's windows have another name.
    PasteTargetRow{u"foot", Match::Name, controlShiftV},
    PasteTargetRow{u"footclient", Match::Name, controlShiftV},
    // xfce4-terminal, mate-terminal, lxterminal, qterminal and their like.
    PasteTargetRow{u"terminal", Match::Fragment, controlShiftV},
};

bool fits(const PasteTargetRow& row, QStringView lowerCaseName) {
    if (row.match == Match::Fragment)
        return lowerCaseName.contains(row.name);
    return lowerCaseName.mid(lowerCaseName.lastIndexOf(u'.') + 1) == row.name;
}

} // namespace

PasteTarget pasteTargetFor(const QStringList& classes) {
    QStringList names;
    for (const auto& name : classes)
        names.append(name.toLower());
    const auto row =
        std::ranges::find_if(pasteTargetTable, [&names](const PasteTargetRow& candidate) {
            return std::ranges::any_of(
                names, [&](const QString& name) { return fits(candidate, name); });
        });
    return row == pasteTargetTable.end() ? PasteTarget{} : row->target;
}

PasteTarget withoutLatinV(const PasteTarget& target) {
    switch (target.keys) {
    case PasteKeys::ControlV:
        return shiftInsert;
    case PasteKeys::ControlShiftV:
        return shiftInsertFromSelection;
    case PasteKeys::ShiftInsert:
        break;
    }
    return target;
}

} // namespace quorvane
