// SPDX-License-Identifier: MIT
#include "DateTimeModelFixture.h"

#include <testing/RecordingSettingsWriter.h>

#include <gmock/gmock.h>

#include <functional>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;

/// Assigns a value to one field, and tells whether the field has it.
struct Assignment {
    const char* name;
    std::function<void(DateTimeModel&)> assign;
    std::function<bool(const DateTimeModel&)> isInPlace;
    QStringList storedKeys; ///< none for what is not persisted
};

std::vector<Assignment> assignments() {
    const Instant other{1};
    return {
        {"startDate",
         [=](auto& m) { m.setStartDate(other); },
         [=](auto& m) { return m.startDate() == other; },
         {}},
        {"endDate",
         [=](auto& m) { m.setEndDate(other); },
         [=](auto& m) { return m.endDate() == other; },
         {}},
        {"isRange", [](auto& m) { m.setIsRange(true); }, [](auto& m) { return m.isRange(); }, {}},
        {"includeDate",
         [](auto& m) { m.setIncludeDate(false); },
         [](auto& m) { return !m.includeDate(); },
         {}},
        {"includeTime",
         [](auto& m) { m.setIncludeTime(false); },
         [](auto& m) { return !m.includeTime(); },
         {}},
        {"selectedTimeZones",
         [](auto& m) { m.setSelectedTimeZones(zones({"UTC"})); },
         [](auto& m) { return m.selectedTimeZones() == zones({"UTC"}); },
         {}},
        {"formatPreset",
         [](auto& m) { m.setFormatPreset(DateFormatPreset::Custom); },
         [](auto& m) { return m.formatPreset() == DateFormatPreset::Custom; },
         {}},
        {"customFormatString",
         [](auto& m) { m.setCustomFormatString(u"d"_s); },
         [](auto& m) { return m.customFormatString() == u"d"_s; },
         {}},
        {"multiZoneLayout",
         [](auto& m) { m.setMultiZoneLayout(MultiZoneLayout::Lines); },
         [](auto& m) { return m.multiZoneLayout() == MultiZoneLayout::Lines; },
         {}},
        {"favoriteTimeZoneIdentifiers",
         [](auto& m) { m.setFavoriteTimeZoneIdentifiers({u"UTC"_s}); },
         [](auto& m) { return m.favoriteTimeZoneIdentifiers() == QStringList{u"UTC"_s}; },
         {u"favoriteTZs"_s}},
        {"hotKey",
         [](auto& m) {
             m.setHotKey({9, 256});
         },
         [](auto& m) {
             return m.hotKey() == HotKeyCombo{9, 256};
         },
         {u"hotKeyCode"_s, u"hotKeyModifiers"_s}},
        {"showInMenuBar",
         [](auto& m) { m.setShowInMenuBar(false); },
         [](auto& m) { return !m.showInMenuBar(); },
         {u"showInMenuBar"_s}},
        {"showInDock",
         [](auto& m) { m.setShowInDock(true); },
         [](auto& m) { return m.showInDock(); },
         {u"showInDock"_s}},
        {"presentationMode",
         [](auto& m) { m.setPresentationMode(PresentationMode::Popover); },
         [](auto& m) { return m.presentationMode() == PresentationMode::Popover; },
         {u"presentationMode"_s}},
        {"shortcutHintDismissed",
         [](auto& m) { m.setShortcutHintDismissed(true); },
         [](auto& m) { return m.isShortcutHintDismissed(); },
         {u"shortcutHintDismissed"_s}},
        {"wantsTyping",
         [](auto& m) { m.setWantsTyping(true); },
         [](auto& m) { return m.wantsTyping(); },
         {u"allowTyping"_s}},
        {"remembersChoices",
         [](auto& m) { m.setRemembersChoices(true); },
         [](auto& m) { return m.remembersChoices(); },
         {u"rememberFormatAndZones"_s,
          u"formatPreset"_s,
          u"customFormat"_s,
          u"multiZoneLayout"_s,
          u"includeDate"_s,
          u"includeTime"_s,
          u"selectedTZs"_s}},
    };
}

TEST_F(DateTimeModelTest, EveryAssignmentAnnouncesItselfBeforeTheValueIsInPlaceOrStored) {
    for (const auto& field : assignments()) {
        const auto model = makeModel();
        const auto writesBefore = m_defaults.writes().size();
        int announced = 0;
        QObject::connect(model.get(), &DateTimeModel::objectWillChange, [&] {
            ++announced;
            EXPECT_FALSE(field.isInPlace(*model)) << field.name;
            EXPECT_EQ(m_defaults.writes().size(), writesBefore) << field.name;
        });
        field.assign(*model);
        EXPECT_EQ(announced, 1) << field.name;
        EXPECT_TRUE(field.isInPlace(*model)) << field.name;
    }
}

TEST_F(DateTimeModelTest, EveryAssignmentOfAnEqualValueAnnouncesAndStoresItselfToo) {
    for (const auto& field : assignments()) {
        const auto model = makeModel();
        field.assign(*model);
        const auto writesBefore = std::ssize(m_defaults.writes());
        int announced = 0;
        QObject::connect(model.get(), &DateTimeModel::objectWillChange, [&] { ++announced; });
        field.assign(*model);
        EXPECT_EQ(announced, 1) << field.name;
        EXPECT_EQ(std::ssize(m_defaults.writes()) - writesBefore, field.storedKeys.size())
            << field.name;
    }
}

TEST_F(DateTimeModelTest, PersistedFieldsAreStoredOnceTheyAreInPlace) {
    for (const auto& field : assignments()) {
        const auto model = makeModel();
        const auto writesBefore = std::ssize(m_defaults.writes());
        field.assign(*model);
        const QStringList writes(
            m_defaults.writes().begin() + writesBefore, m_defaults.writes().end());
        EXPECT_EQ(writes, field.storedKeys) << field.name;
    }
    EXPECT_EQ(HotKeyCombo::load(m_defaults), (HotKeyCombo{9, 256}));
    EXPECT_EQ(m_defaults.stringArrayForKey(favoritesKey), QStringList{u"UTC"_s});
    EXPECT_FALSE(m_defaults.boolForKey(u"showInMenuBar"_s));
    EXPECT_TRUE(m_defaults.boolForKey(u"showInDock"_s));
    EXPECT_EQ(m_defaults.stringForKey(u"presentationMode"_s), u"Popover"_s);
}

TEST_F(DateTimeModelTest, SettingsOfTheShellAreAnnouncedWithTheirNewValue) {
    const auto model = makeModel();
    QStringList events;
    QObject::connect(model.get(), &DateTimeModel::objectWillChange, [&] { events.append(u"-"_s); });
    QObject::connect(model.get(), &DateTimeModel::showInMenuBarWillChange, [&](bool show) {
        EXPECT_NE(model->showInMenuBar(), show);
        events.append(show ? u"menu bar"_s : u"no menu bar"_s);
    });
    QObject::connect(model.get(), &DateTimeModel::showInDockWillChange, [&](bool show) {
        EXPECT_NE(model->showInDock(), show);
        events.append(show ? u"dock"_s : u"no dock"_s);
    });
    QObject::connect(
        model.get(), &DateTimeModel::presentationModeWillChange, [&](PresentationMode mode) {
            EXPECT_NE(model->presentationMode(), mode);
            events.append(rawValue(mode));
        });
    model->setShowInMenuBar(false);
    model->setShowInDock(true);
    model->setPresentationMode(PresentationMode::Popover);
    EXPECT_EQ(
        events, (QStringList{u"-"_s, u"no menu bar"_s, u"-"_s, u"dock"_s, u"-"_s, u"Popover"_s}));
}

TEST_F(DateTimeModelTest, WhatTheUserComposedEndsWithTheRun) {
    {
        const auto model = makeModel();
        for (const auto& field : assignments())
            field.assign(*model);
        model->setRemembersChoices(false);
    }
    const auto next = makeModel();
    EXPECT_EQ(next->formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(next->selectedTimeZones(), zones({"Asia/Kolkata"}));
    EXPECT_EQ(next->startDate(), march9);
    EXPECT_EQ(next->presentationMode(), PresentationMode::Popover);
    EXPECT_EQ(next->hotKey(), (HotKeyCombo{9, 256}));
    EXPECT_TRUE(next->isShortcutHintDismissed());
    EXPECT_TRUE(next->wantsTyping());
}

TEST_F(DateTimeModelTest, ShortcutIsStoredAtOnceAndNeverHalf) {
    RecordingSettingsWriter writer;
    JsonDefaultsStore defaults(u"/none"_s, writer);
    const auto model = makeModel(defaults);
    const auto before = writer.changes().size();
    model->setHotKey({9, 256});
    ASSERT_EQ(writer.changes().size(), before + 1);
    const auto& values = writer.changes().back().values;
    EXPECT_EQ(values[u"hotKeyCode"_s].toInt(), 9);
    EXPECT_EQ(values[u"hotKeyModifiers"_s].toInt(), 256);
}

TEST_F(DateTimeModelTest, OutputFollowsTheFields) {
    const auto model = makeModel();
    EXPECT_EQ(model->formattedOutput(), u"March 10, 2024 at 3:35 AM GMT+5:30"_s);
    model->setSelectedTimeZones(zones({"Europe/London", "America/Los_Angeles"}));
    model->setFormatPreset(DateFormatPreset::Iso8601);
    model->setMultiZoneLayout(MultiZoneLayout::Lines);
    EXPECT_EQ(model->formattedOutput(), u"2024-03-09T14:05:00-08:00\n2024-03-09T22:05:00Z"_s);
    model->setIsRange(true);
    model->setIncludeTime(false);
    EXPECT_EQ(model->formattedOutput(), u"2024-03-09 – 2024-03-09"_s);
    model->setFormatPreset(DateFormatPreset::Custom);
    model->setCustomFormatString(u"HH"_s);
    EXPECT_EQ(model->formattedOutput(), u"22 – 23"_s);
    EXPECT_EQ(model->formatSingle(march9, zone("Asia/Tokyo"), DateFormatPreset::Custom), u"07"_s);
}

TEST_F(DateTimeModelTest, TimeWithoutAZoneCannotBeDelivered) {
    const auto model = makeModel();
    EXPECT_TRUE(model->isDeliverable());
    model->setSelectedTimeZones({});
    EXPECT_FALSE(model->isDeliverable());
    model->setIncludeTime(false);
    EXPECT_TRUE(model->isDeliverable());
}

TEST_F(DateTimeModelTest, PresetThatIsNoLongerOfferedIsReplaced) {
    const auto model = makeModel();
    model->setFormatPreset(DateFormatPreset::ShortForm);
    int announced = 0;
    QObject::connect(model.get(), &DateTimeModel::objectWillChange, [&] { ++announced; });
    model->reconcileFormatPreset();
    EXPECT_EQ(model->formatPreset(), DateFormatPreset::ShortForm);
    EXPECT_EQ(announced, 0);
    model->setIncludeDate(false);
    model->reconcileFormatPreset();
    EXPECT_EQ(model->formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(announced, 2);
}

TEST_F(DateTimeModelTest, SampleForThePresetsIsInTheCurrentZoneWithoutASelection) {
    using testing::Contains;
    using testing::Not;
    const auto model = makeModel();
    model->setIncludeTime(false);
    // Still April in New York, but May in Kolkata, where Medium abbreviates nothing that Long does
    // not: there it says the same and is not offered.
    model->setStartDate(Instant{1714507200}); // 2024-04-30T20:00:00Z
    model->setSelectedTimeZones({});
    EXPECT_THAT(model->availableFormatPresets(), Not(Contains(DateFormatPreset::MediumForm)));
    model->setSelectedTimeZones(zones({"America/New_York", "Asia/Kolkata"}));
    EXPECT_THAT(model->availableFormatPresets(), Contains(DateFormatPreset::MediumForm));
    model->setSelectedTimeZones({});
    m_currentZone.set(zone("America/New_York"));
    EXPECT_THAT(model->availableFormatPresets(), Contains(DateFormatPreset::MediumForm));
}

TEST_F(DateTimeModelTest, FavouritesThatWereMadeWithoutZoneDataAreNotStored) {
    const QTemporaryDir nothing;
    const ZoneDatabase none(nothing.path());
    const DateTimeModel model(
        {m_clock, m_defaults, m_currentZone, none, UserLocale::named(u"en_US"_s)});
    EXPECT_EQ(m_defaults.stringArrayForKey(favoritesKey), std::nullopt);
}

TEST_F(DateTimeModelTest, SlotsAreFavouritesAndSelectedZones) {
    const auto model = makeModel();
    model->setFavoriteTimeZoneIdentifiers({u"Asia/Tokyo"_s, u"Moon/Tycho"_s});
    EXPECT_EQ(model->timeZoneSlots(), zones({"Asia/Tokyo", "Asia/Kolkata"}));
}

} // namespace
} // namespace quorvane
