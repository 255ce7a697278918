// SPDX-License-Identifier: MIT
#include "../composition/Samples.h"

#include <model/DateTimeModel.h>
#include <settings/JsonDefaultsStore.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;

/// A user whose settings are in a file.
class RememberedChoicesTest : public testing::Test {
protected:
    /// What the next start of the program reads.
    [[nodiscard]] std::unique_ptr<DateTimeModel> startAnew() {
        m_defaults = std::make_unique<JsonDefaultsStore>(path(), m_writer);
        return std::make_unique<DateTimeModel>(DateTimeModel::Dependencies{
            m_clock, *m_defaults, m_currentZone, m_zones, locale("en_US")});
    }

    [[nodiscard]] std::unique_ptr<DateTimeModel> startFrom(const QByteArray& json) {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
        file.close();
        return startAnew();
    }

    /// Starts from settings with these values, and returns what was said on standard error.
    [[nodiscard]] QStringList complaintsAbout(const QByteArray& values) {
        testing::internal::CaptureStderr();
        m_model = startFrom(R"({"rememberFormatAndZones": true, )" + values + "}");
        return QString::fromStdString(testing::internal::GetCapturedStderr())
            .split(u'\n', Qt::SkipEmptyParts);
    }

    [[nodiscard]] QByteArray stored() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] QString path() const { return m_folder.filePath(u"defaults.json"_s); }

    FixedClock m_clock{march9};
    FixedCurrentZone m_currentZone{zone("Asia/Kolkata")};
    ZoneDatabase m_zones;
    std::unique_ptr<DateTimeModel> m_model;

private:
    QTemporaryDir m_folder;
    ImmediateSettingsWriter m_writer;
    std::unique_ptr<JsonDefaultsStore> m_defaults;
};

void compose(DateTimeModel& model) {
    model.setFormatPreset(DateFormatPreset::Iso8601);
    model.setCustomFormatString(u"QQQ 'of' y"_s);
    model.setMultiZoneLayout(MultiZoneLayout::Lines);
    model.setIncludeTime(false);
    model.setSelectedTimeZones(zones({"Asia/Tokyo", "Europe/Paris"}));
    model.setIsRange(true);
    model.setStartDate(Instant{1});
}

TEST_F(RememberedChoicesTest, AtFirstNothingIsRemembered) {
    m_model = startAnew();
    EXPECT_FALSE(m_model->remembersChoices());
    const auto before = stored();
    compose(*m_model);
    EXPECT_EQ(stored(), before);
    m_model = startAnew();
    EXPECT_EQ(m_model->formatPreset(), DateFormatPreset::LongForm);
}

TEST_F(RememberedChoicesTest, ChoicesMadeBeforeAndAfterComeBackButDatesDoNot) {
    for (const bool isSwitchedFirst : {true, false}) {
        m_model = startFrom("{}");
        m_model->setRemembersChoices(isSwitchedFirst);
        compose(*m_model);
        m_model->setRemembersChoices(true);
        m_model = startAnew();
        EXPECT_TRUE(m_model->remembersChoices());
        EXPECT_EQ(m_model->formatPreset(), DateFormatPreset::Iso8601);
        EXPECT_EQ(m_model->customFormatString(), u"QQQ 'of' y"_s);
        EXPECT_EQ(m_model->multiZoneLayout(), MultiZoneLayout::Lines);
        EXPECT_TRUE(m_model->includeDate());
        EXPECT_FALSE(m_model->includeTime());
        EXPECT_EQ(m_model->selectedTimeZones(), zones({"Asia/Tokyo", "Europe/Paris"}));
        EXPECT_FALSE(m_model->isRange());
        EXPECT_EQ(m_model->startDate(), march9);
        EXPECT_FALSE(m_model->hasEnteredDate());
    }
}

TEST_F(RememberedChoicesTest, SwitchedOffTheyEndWithTheRunAgain) {
    m_model = startAnew();
    m_model->setRemembersChoices(true);
    compose(*m_model);
    m_model->setRemembersChoices(false);
    m_model = startAnew();
    EXPECT_EQ(m_model->formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(m_model->selectedTimeZones(), zones({"Asia/Kolkata"}));
    EXPECT_TRUE(m_model->includeTime());
}

/// One of a list, with a generator that gives the same on every machine.
template <typename List>
auto oneOf(const List& list, std::minstd_rand& random) {
    return list[random() % std::size(list)];
}

TEST_F(RememberedChoicesTest, WhateverIsChosenComesBackAsItWas) {
    std::minstd_rand random(27);
    const std::array patterns{
        u""_s,
        u"y"_s,
        u"'\"\\"_s,
        u"HH:mm 'Uhr' €"_s,
        QString(10'000, u'd'),
        QString(QChar(0)) + u'x'};
    const std::array identifiers{
        "UTC", "Asia/Tokyo", "America/New_York", "Etc/GMT+12", "Europe/Paris"};
    for (int round = 0; round < 100; ++round) {
        m_model = startAnew();
        m_model->setRemembersChoices(true);
        m_model->setFormatPreset(oneOf(allDateFormatPresets, random));
        m_model->setCustomFormatString(oneOf(patterns, random));
        m_model->setMultiZoneLayout(oneOf(allMultiZoneLayouts, random));
        const bool date = random() % 2 == 0;
        m_model->setIncludeDate(date);
        m_model->setIncludeTime(!date || random() % 2 == 0);
        auto selection = zones({});
        for (std::size_t count = random() % 4; selection.size() < count;) {
            const auto next = zone(oneOf(identifiers, random));
            if (std::ranges::find(selection, next) == selection.end())
                selection.push_back(next);
        }
        m_model->setSelectedTimeZones(selection);
        const auto before = std::move(m_model);
        m_model = startAnew();
        EXPECT_EQ(m_model->formatPreset(), before->formatPreset()) << round;
        EXPECT_EQ(m_model->multiZoneLayout(), before->multiZoneLayout()) << round;
        EXPECT_EQ(m_model->includeDate(), before->includeDate()) << round;
        EXPECT_EQ(m_model->includeTime(), before->includeTime()) << round;
        EXPECT_EQ(m_model->selectedTimeZones(), selection) << round;
        EXPECT_EQ(m_model->customFormatString(), before->customFormatString()) << round;
    }
}

TEST_F(RememberedChoicesTest, AZoneByAnOldNameComesBackAsTheOneThatIsListed) {
    m_model = startAnew();
    m_model->setRemembersChoices(true);
    m_model->setSelectedTimeZones(zones({"US/Eastern", "Asia/Tokyo"}));
    m_model = startAnew();
    EXPECT_EQ(m_model->selectedTimeZones(), zones({"America/New_York", "Asia/Tokyo"}));
}

TEST_F(RememberedChoicesTest, RubbishIsIgnoredWithOneLineEach) {
    const auto lines = complaintsAbout(
        R"("formatPreset": "Loud", "multiZoneLayout": 7, "customFormat": "y",
           "includeDate": false, "includeTime": 0, "selectedTZs": ["Moon/Tycho", "\nMars", ""])");
    ASSERT_EQ(lines.size(), 4) << lines.join(u'|').toStdString();
    EXPECT_TRUE(lines[0].contains(u"formatPreset"_s));
    EXPECT_TRUE(lines[1].contains(u"multiZoneLayout"_s));
    EXPECT_TRUE(lines[2].contains(u"includeDate"_s));
    EXPECT_TRUE(lines[3].contains(u"Moon/Tycho"_s));
    EXPECT_EQ(m_model->formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(m_model->multiZoneLayout(), MultiZoneLayout::Inline);
    EXPECT_EQ(m_model->customFormatString(), u"y"_s);
    EXPECT_TRUE(m_model->includeDate());
    EXPECT_TRUE(m_model->includeTime());
    EXPECT_EQ(m_model->selectedTimeZones(), zones({"Asia/Kolkata"}));
}

TEST_F(RememberedChoicesTest, ZonesThatAreNoneOrTwiceAreLeftOut) {
    EXPECT_EQ(complaintsAbout(R"("selectedTZs": ["UTC", "Moon/Tycho", "UTC"])").size(), 1);
    EXPECT_EQ(m_model->selectedTimeZones(), zones({"UTC"}));
    EXPECT_EQ(complaintsAbout(R"("selectedTZs": [])").size(), 0);
    EXPECT_TRUE(m_model->selectedTimeZones().empty());
    EXPECT_EQ(complaintsAbout(R"("selectedTZs": ["UTC", 5], "formatPreset": null)").size(), 0);
    EXPECT_EQ(m_model->selectedTimeZones(), zones({"Asia/Kolkata"}));
}

TEST_F(RememberedChoicesTest, WhatIsChosenAgainWritesNothing) {
    m_model = startAnew();
    m_model->setRemembersChoices(true);
    compose(*m_model);
    EXPECT_TRUE(QFile::remove(path()));
    m_model->setFormatPreset(DateFormatPreset::Iso8601);
    m_model->setSelectedTimeZones(zones({"Asia/Tokyo", "Europe/Paris"}));
    m_model->setRemembersChoices(true);
    EXPECT_FALSE(QFile::exists(path()));
}

} // namespace
} // namespace quorvane
