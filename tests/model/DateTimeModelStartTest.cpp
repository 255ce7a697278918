// SPDX-License-Identifier: MIT
#include "DateTimeModelFixture.h"

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;
using testing::ElementsAre;

using DateTimeModelStart = DateTimeModelTest;

TEST_F(DateTimeModelStart, StartsAfreshWithTheCurrentHourAndZone) {
    const auto model = makeModel();
    EXPECT_EQ(model->startDate(), march9);
    EXPECT_EQ(model->endDate(), march9 + Seconds(hour));
    EXPECT_FALSE(model->isRange());
    EXPECT_TRUE(model->includeDate());
    EXPECT_TRUE(model->includeTime());
    EXPECT_EQ(model->selectedTimeZones(), zones({"Asia/Kolkata"}));
    EXPECT_EQ(model->formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(model->customFormatString(), u"yyyy-MM-dd HH:mm zzz"_s);
    EXPECT_EQ(model->multiZoneLayout(), MultiZoneLayout::Inline);
}

TEST_F(DateTimeModelStart, FirstLaunchHasTheDefaultsAndStoresTheFavourites) {
    const auto model = makeModel();
    EXPECT_TRUE(model->showInMenuBar());
    EXPECT_FALSE(model->showInDock());
    EXPECT_EQ(model->presentationMode(), PresentationMode::Window);
    EXPECT_EQ(model->hotKey(), (HotKeyCombo{2, 0x1300}));
    EXPECT_EQ(model->favoriteTimeZoneIdentifiers(), defaultFavorites);
    EXPECT_EQ(m_defaults.stringArrayForKey(favoritesKey), defaultFavorites);
    EXPECT_THAT(m_defaults.writes(), ElementsAre(favoritesKey));
}

TEST_F(DateTimeModelStart, StoredSettingsAreRead) {
    const auto model = makeModelFrom(R"({
        "showInMenuBar": false, "showInDock": true, "presentationMode": "Popover",
        "hotKeyCode": 9, "hotKeyModifiers": 256, "favoriteTZs": ["Asia/Seoul", "Moon/Tycho"]})");
    EXPECT_FALSE(model->showInMenuBar());
    EXPECT_TRUE(model->showInDock());
    EXPECT_EQ(model->presentationMode(), PresentationMode::Popover);
    EXPECT_EQ(model->hotKey(), (HotKeyCombo{9, 256}));
    EXPECT_EQ(
        model->favoriteTimeZoneIdentifiers(), (QStringList{u"Asia/Seoul"_s, u"Moon/Tycho"_s}));
}

TEST_F(DateTimeModelStart, PresentationModeIsTheExactTextOrTheWindow) {
    for (const char* value :
         {R"("popover")", R"("POPOVER")", R"("Window")", R"("")", "5", "true", "null", "[]"}) {
        const auto model = makeModelFrom(QByteArray(R"({"presentationMode": )") + value + "}");
        EXPECT_EQ(model->presentationMode(), PresentationMode::Window) << value;
    }
}

TEST_F(DateTimeModelStart, FlagsAreCoercedAndOnlyAValueCountsAsOne) {
    struct Row {
        const char* value;
        bool menuBar;
        bool dock;
    };

    for (const auto& row :
         {Row{"0", false, false},
          Row{"1", true, true},
          Row{R"("YES")", true, true},
          Row{R"("no")", false, false},
          Row{R"("what")", false, false},
          Row{"null", true, false},
          Row{"[]", true, false},
          Row{"{}", true, false}}) {
        const auto value = QByteArray(row.value);
        const auto model =
            makeModelFrom(R"({"showInMenuBar": )" + value + R"(, "showInDock": )" + value + "}");
        EXPECT_EQ(model->showInMenuBar(), row.menuBar) << row.value;
        EXPECT_EQ(model->showInDock(), row.dock) << row.value;
    }
}

TEST_F(DateTimeModelStart, StartLeavesAFileThatHasTheFavouritesAsItIs) {
    const QByteArray json = R"({"favoriteTZs":["UTC"],"other":12345678901234567890})";
    const auto model = makeModelFrom(json);
    EXPECT_EQ(storedJson(), json);
    model->setShowInDock(false);
    EXPECT_NE(storedJson(), json);
}

TEST_F(DateTimeModelStart, EmptyFavouritesStayEmpty) {
    const auto model = makeModelFrom(R"({"favoriteTZs": []})");
    EXPECT_TRUE(model->favoriteTimeZoneIdentifiers().isEmpty());
    EXPECT_EQ(m_stored->stringArrayForKey(favoritesKey), QStringList());
}

TEST_F(DateTimeModelStart, FavouritesThatAreNotAllTextsAreReplacedByTheDefaults) {
    for (const char* value : {R"(["Europe/Paris", 5])", R"("Europe/Paris")", "null", "{}"}) {
        const auto model = makeModelFrom(QByteArray(R"({"favoriteTZs": )") + value + "}");
        EXPECT_EQ(model->favoriteTimeZoneIdentifiers(), defaultFavorites) << value;
        EXPECT_EQ(m_stored->stringArrayForKey(favoritesKey), defaultFavorites) << value;
    }
}

TEST_F(DateTimeModelStart, StoredShortcutThatIsNoneIsLeftInTheFile) {
    for (const char* value : {"-1", "65536", "4294967296", "9223372036854775807", "1e300"}) {
        const auto model =
            makeModelFrom(QByteArray(R"({"hotKeyModifiers": 256, "hotKeyCode": )") + value + "}");
        EXPECT_EQ(model->hotKey(), HotKeyCombo()) << value;
        EXPECT_NE(m_stored->integerForKey(u"hotKeyCode"_s), 2) << value;
        model->setHotKey({9, 256});
        EXPECT_EQ(m_stored->integerForKey(u"hotKeyCode"_s), 9) << value;
    }
}

} // namespace
} // namespace quorvane
