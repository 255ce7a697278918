// SPDX-License-Identifier: MIT
#include "Boards.h"

#include "PanelPlay.h"

#include <QApplication>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int panelColumns = 2;
constexpr int popoverColumns = 3;

void composePattern(DateTimeModel& model) {
    sample::selectZones(model, {u"America/New_York"_s, u"Europe/London"_s});
    model.setFormatPreset(DateFormatPreset::Custom);
    model.setCustomFormatString(u"EEE d MMM, HH:mm zzz"_s);
    model.setPresentationMode(PresentationMode::Popover);
}

void composeTwoZones(DateTimeModel& model) {
    sample::selectZones(model, {u"America/New_York"_s, u"Europe/London"_s});
}

void selectNothing(DateTimeModel& model) {
    sample::selectZones(model, {});
}

void composeOneDay(DateTimeModel& model) {
    sample::composeRange(model, sample::later);
}

void composeDays(DateTimeModel& model) {
    sample::composeRange(model, sample::daysLater);
}

void composeBackwards(DateTimeModel& model) {
    model.setIsRange(true);
    model.setEndDate(sample::now + std::chrono::hours(-50));
}

void addPickers(BoardPicture& board, const BoardSetting& setting) {
    {
        PanelPlay play(setting, composeOneDay);
        play.openPicker();
        play.hoverZone(4);
        board.add(u"Zone picker"_s, play.picture());
    }
    {
        PanelPlay play(setting, composeOneDay);
        play.openPicker();
        play.search(u"la"_s);
        play.hoverZone(7);
        board.add(u"Zone picker, searching"_s, play.picture());
    }
    {
        PanelPlay play(setting, composeOneDay);
        play.openPicker();
        play.search(u"atlantis"_s);
        board.add(u"Zone picker, nothing found"_s, play.picture());
    }
}

void addMenus(BoardPicture& board, const BoardSetting& setting) {
    {
        PanelPlay play(setting, composeTwoZones);
        play.openPresets();
        play.hoverRow(3);
        board.add(u"Presets"_s, play.picture());
    }
    {
        PanelPlay play(setting);
        play.openMore();
        play.hoverRow(0);
        board.add(u"More menu"_s, play.picture());
    }
}

constexpr qsizetype manyZones = 20;

void composeManyZones(DateTimeModel& model) {
    model.setFavoriteTimeZoneIdentifiers({});
    // One of each region of the list, as far apart as it goes.
    const auto all = sample::zones().zonesByCountry();
    QStringList chosen;
    for (qsizetype index = 0; index < manyZones; ++index)
        chosen.append(all.at(index * all.size() / manyZones));
    sample::selectZones(model, chosen);
    model.setFormatPreset(DateFormatPreset::WithDayOfWeek);
}

void composeManyLines(DateTimeModel& model) {
    composeManyZones(model);
    model.setIsRange(true);
    model.setEndDate(sample::daysLater);
    model.setMultiZoneLayout(MultiZoneLayout::Lines);
}

void composeUnknownLetter(DateTimeModel& model) {
    composePattern(model);
    model.setCustomFormatString(u"d of MMMM, HH:mm"_s);
}

} // namespace

QImage outputBoard(const BoardSetting& setting) {
    BoardPicture board(QApplication::palette(), panelColumns);
    board.add(u"Twenty zones, Inline"_s, PanelPlay(setting, composeManyZones).picture());
    {
        PanelPlay play(setting, composeManyLines);
        play.setHeight(780);
        board.add(u"Twenty zones, Lines, on a low screen"_s, play.picture());
    }
    {
        PanelPlay play(setting, composeUnknownLetter);
        play.enterPattern();
        board.add(u"Custom pattern with letters that stand for nothing"_s, play.picture());
    }
    {
        PanelPlay play(setting, composePattern);
        play.setHeight(720);
        play.openPatternPage();
        play.hoverRow(4);
        board.add(u"Letters of a pattern"_s, play.picture());
    }
    return board.image(setting.scale);
}

QImage panelBoard(const BoardSetting& setting) {
    BoardPicture board(QApplication::palette(), panelColumns);
    board.add(u"First open"_s, PanelPlay(setting).picture());
    board.add(u"Range, four zones, Lines"_s, PanelPlay(setting, composeOneDay).picture());
    board.add(
        u"End before the start, a date of the user's"_s,
        PanelPlay(setting, composeBackwards).picture());
    {
        PanelPlay play(setting, composePattern);
        play.enterPattern();
        play.copy();
        board.add(u"Custom pattern, copied"_s, play.picture());
    }
    {
        PanelPlay play(setting, selectNothing);
        play.hoverPlus();
        board.add(u"No zone selected: dimmed below"_s, play.picture());
    }
    return board.image(setting.scale);
}

QImage popoversBoard(const BoardSetting& setting) {
    BoardPicture board(QApplication::palette(), popoverColumns);
    {
        PanelPlay play(setting);
        play.openStartTime();
        board.add(u"Time popover"_s, play.picture());
    }
    {
        PanelPlay play(setting, composeDays);
        play.openEndDate();
        play.hoverDay(26);
        board.add(u"Calendar of the end date; days before the start refused"_s, play.picture());
    }
    addPickers(board, setting);
    addMenus(board, setting);
    {
        PanelPlay play(setting, composeOneDay);
        play.openStartTime();
        play.enterMinute();
        board.add(u"Time popover, minute focused"_s, play.picture());
    }
    return board.image(setting.scale);
}

QImage entryBoard(const BoardSetting& setting) {
    BoardPicture board(QApplication::palette(), popoverColumns);
    const auto addDate = [&](const QString& title, const QString& text) {
        PanelPlay play(setting);
        play.openStartDate();
        play.typeDate(text);
        board.add(title, play.picture());
    };
    const auto addTime = [&](const QString& title, const BoardSetting& used, const QString& text) {
        PanelPlay play(used);
        play.openStartTime();
        play.typeTime(text);
        board.add(title, play.picture());
    };
    addDate(u"Typed date; the days follow"_s, u"+3w"_s);
    addDate(u"Typed date refused"_s, u"2026-02-30"_s);
    addTime(u"Hour refused"_s, setting, u"99"_s);
    auto day24 = setting;
    if (day24.localeName == u"en_US"_s)
        day24.localeName = u"de_DE"_s;
    addTime(u"24 hours"_s, day24, {});
    addTime(u"24 hours, a whole time half typed"_s, day24, u"14:0"_s);
    return board.image(setting.scale);
}

} // namespace quorvane
