// SPDX-License-Identifier: MIT
#include <picker/ZoneListModel.h>
#include <testing/FixedClock.h>
#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

#include <memory>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant beforeSummerTime{1710053940}; // 2024-03-10T06:59:00Z, a minute before it begins

class ZoneListModelTest : public testing::Test {
protected:
    /// What the row of a zone shows at its end, at that moment.
    [[nodiscard]] QStringList
    shown(const QString& identifier, const QString& locale, Instant now = beforeSummerTime) const {
        const FixedClock clock(now);
        const auto model = makeModel(clock, locale, identifier);
        return endOfRow(*model);
    }

    [[nodiscard]] static QStringList endOfRow(const ZoneListModel& model) {
        const auto row = model.index(0, 0);
        return {
            row.data(ZoneListModel::AbbreviationRole).toString(),
            row.data(ZoneListModel::OffsetRole).toString()};
    }

    [[nodiscard]] std::unique_ptr<ZoneListModel>
    makeModel(const Clock& clock, const QString& locale, const QString& identifier) const {
        auto model = std::make_unique<ZoneListModel>(
            clock, UserLocale::named(locale), [](const TimeZone&) { return false; });
        model->setSections({{{}, {*m_zones.zone(identifier)}}});
        return model;
    }

private:
    ZoneDatabase m_zones;
};

TEST_F(ZoneListModelTest, AbbreviationStandsBesideTheOffset) {
    EXPECT_EQ(shown(u"America/New_York"_s, u"en_US"_s), QStringList({u"EST"_s, u"UTC-5"_s}));
    EXPECT_EQ(shown(u"Europe/London"_s, u"en_US"_s), QStringList({u"GMT"_s, u"UTC+0"_s}));
    EXPECT_EQ(shown(u"UTC"_s, u"fr_FR"_s), QStringList({u"UTC"_s, u"UTC+0"_s}));
}

TEST_F(ZoneListModelTest, OffsetIsShownOnceWhereALanguageHasNoOtherName) {
    EXPECT_EQ(shown(u"America/New_York"_s, u"fr_FR"_s), QStringList({QString(), u"UTC-5"_s}));
    EXPECT_EQ(shown(u"Asia/Tokyo"_s, u"fr_FR"_s), QStringList({QString(), u"UTC+9"_s}));
    EXPECT_EQ(shown(u"Asia/Tokyo"_s, u"en_US"_s), QStringList({QString(), u"UTC+9"_s}));
    EXPECT_EQ(shown(u"Asia/Kolkata"_s, u"sv_SE"_s), QStringList({QString(), u"UTC+5:30"_s}));
}

TEST_F(ZoneListModelTest, ShowsTheMomentInWhichItIsAsked) {
    FixedClock clock(beforeSummerTime);
    const auto model = makeModel(clock, u"en_US"_s, u"America/New_York"_s);
    EXPECT_EQ(endOfRow(*model), QStringList({u"EST"_s, u"UTC-5"_s}));
    clock.set(beforeSummerTime + std::chrono::seconds(59));
    EXPECT_EQ(endOfRow(*model), QStringList({u"EST"_s, u"UTC-5"_s}));
    clock.set(beforeSummerTime + std::chrono::seconds(60));
    EXPECT_EQ(endOfRow(*model), QStringList({u"EDT"_s, u"UTC-4"_s}));
}

} // namespace
} // namespace quorvane
