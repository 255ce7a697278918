// SPDX-License-Identifier: MIT
#include "../composition/Samples.h"

#include <model/DateTimeModel.h>
#include <settings/JsonDefaultsStore.h>
#include <support/Draws.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/ImmediateSettingsWriter.h>
#include <testing/MemoryDefaults.h>
#include <timezones/ZoneSelection.h>

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;

constexpr int rounds = 100;

QStringList drawnIdentifiers(Draws& draws) {
    static const std::array identifiers{
        u"UTC"_s, u"Asia/Tokyo"_s, u"US/Eastern"_s, u"No/Where"_s, u"Etc/GMT+12"_s, QString()};
    QStringList drawn;
    for (int count = draws.number(0, 6); count > 0; --count)
        drawn << (draws.flag() ? draws.oneOf(identifiers) : draws.text(20));
    return drawn;
}

HotKeyCombo drawnShortcut(Draws& draws) {
    constexpr std::array<std::uint32_t, 4> modifiers{0x100, 0x200, 0x800, 0x1000};
    HotKeyCombo combo{static_cast<std::uint32_t>(draws.number(0, 127)), draws.oneOf(modifiers)};
    combo.modifiers |= draws.oneOf(modifiers);
    return combo;
}

class ModelPropertiesTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<DateTimeModel> modelOver(DefaultsStore& defaults) const {
        return std::make_unique<DateTimeModel>(DateTimeModel::Dependencies{
            m_clock, defaults, m_currentZone, m_zones, locale("en_US")});
    }

    QTemporaryDir m_folder;
    FixedClock m_clock{march9};
    FixedCurrentZone m_currentZone{zone("Asia/Kolkata")};
    ZoneDatabase m_zones;
    Draws m_draws;
    testing::ScopedTrace m_trace{__FILE__, __LINE__, m_draws.origin()};
};

TEST_F(ModelPropertiesTest, EveryPreferenceComesBackFromTheFile) {
    ImmediateSettingsWriter writer;
    // Each assignment is brought to the disk.
    for (int round = 0; round < 20; ++round) {
        JsonDefaultsStore first(m_folder.filePath(u"defaults.json"_s), writer);
        const auto before = modelOver(first);
        before->setFavoriteTimeZoneIdentifiers(drawnIdentifiers(m_draws));
        before->setHotKey(drawnShortcut(m_draws));
        before->setShowInMenuBar(m_draws.flag());
        before->setShowInDock(m_draws.flag());
        before->setPresentationMode(m_draws.oneOf(allPresentationModes));
        before->setRemembersChoices(m_draws.flag());
        before->setShortcutHintDismissed(m_draws.flag());
        before->setWantsTyping(m_draws.flag());
        before->setCustomFormatString(m_draws.text(40));
        JsonDefaultsStore second(m_folder.filePath(u"defaults.json"_s), writer);
        const auto after = modelOver(second);
        EXPECT_EQ(after->favoriteTimeZoneIdentifiers(), before->favoriteTimeZoneIdentifiers());
        EXPECT_EQ(after->hotKey(), before->hotKey());
        EXPECT_EQ(after->showInMenuBar(), before->showInMenuBar());
        EXPECT_EQ(after->showInDock(), before->showInDock());
        EXPECT_EQ(after->presentationMode(), before->presentationMode());
        EXPECT_EQ(after->remembersChoices(), before->remembersChoices());
        EXPECT_EQ(after->isShortcutHintDismissed(), before->isShortcutHintDismissed());
        EXPECT_EQ(after->wantsTyping(), before->wantsTyping());
        EXPECT_TRUE(
            !before->remembersChoices() ||
            after->customFormatString() == before->customFormatString());
    }
}

TEST_F(ModelPropertiesTest, TwoTogglesOfAZoneTakeEachOtherBack) {
    const auto all = zones({"UTC", "Asia/Tokyo", "Europe/Paris", "America/New_York"});
    auto selection = zones({"UTC"});
    for (int round = 0; round < rounds; ++round) {
        const auto& zone = m_draws.oneOf(all);
        const bool wasSelected = std::ranges::find(selection, zone) != selection.end();
        const auto once = toggledSelection(selection, zone);
        ASSERT_FALSE(once.empty());
        for (const auto& each : all) {
            const auto count = std::ranges::count(once, each);
            EXPECT_LE(count, 1);
            const auto expected = each == zone ? (wasSelected && selection.size() > 1 ? 0 : 1)
                                               : std::ranges::count(selection, each);
            EXPECT_EQ(count, expected);
        }
        EXPECT_TRUE(wasSelected || toggledSelection(once, zone) == selection);
        selection = once;
    }
}

/// What a user and the clock may do, and the rule by which a date is the user's.
TEST_F(ModelPropertiesTest, DatesAreFreshUntilTheUserEntersOne) {
    MemoryDefaults defaults;
    const auto model = modelOver(defaults);
    bool isEntered = false;
    const auto minuteOf = [](Instant instant) {
        return std::floor(instant.secondsSince1970 / 60);
    };
    for (int step = 0; step < 10 * rounds; ++step) {
        const auto start = model->startDate();
        const auto end = model->endDate();
        switch (m_draws.number(0, 3)) {
        case 0:
            m_clock.set(m_clock.now() + Seconds(m_draws.number(-100.0, 90'000.0)));
            model->renewDates();
            if (isEntered) {
                EXPECT_EQ(model->startDate(), start);
                EXPECT_EQ(model->endDate(), end);
            } else {
                EXPECT_EQ(model->startDate(), m_clock.now());
                EXPECT_EQ(
                    minuteOf(model->endDate()) - minuteOf(model->startDate()),
                    minuteOf(end) - minuteOf(start));
            }
            break;
        case 1: {
            const auto entered = start + Seconds(m_draws.number(-150.0, 150.0));
            isEntered = isEntered || minuteOf(entered) != minuteOf(start);
            model->setStartDate(entered);
            EXPECT_EQ(model->startDate(), entered);
            EXPECT_EQ(model->endDate(), end);
            break;
        }
        case 2: {
            const auto entered = end + Seconds(m_draws.number(-150.0, 150.0));
            isEntered = isEntered || minuteOf(entered) != minuteOf(end);
            model->setEndDate(entered);
            EXPECT_EQ(model->startDate(), start);
            EXPECT_EQ(model->endDate(), entered);
            break;
        }
        default:
            model->returnToNow();
            isEntered = false;
            EXPECT_EQ(model->startDate(), m_clock.now());
        }
        ASSERT_EQ(model->hasEnteredDate(), isEntered) << step;
    }
}

} // namespace
} // namespace quorvane
