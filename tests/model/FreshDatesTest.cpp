// SPDX-License-Identifier: MIT
#include "../composition/Samples.h"

#include <model/DateTimeModel.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>
#include <time/CivilTime.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace samples;
using namespace std::chrono_literals;

class FreshDatesTest : public testing::Test {
protected:
    void passTime(Seconds span) { m_clock.set(m_clock.now() + span); }

    FixedClock m_clock{march9 + Seconds(12.5)};
    FixedCurrentZone m_currentZone{zone("Asia/Kolkata")};
    ZoneDatabase m_zones;
    MemoryDefaults m_defaults;
    DateTimeModel m_model{{m_clock, m_defaults, m_currentZone, m_zones, locale("en_US")}};
};

TEST_F(FreshDatesTest, DatesThatNobodyHasEnteredMoveToThePresent) {
    EXPECT_FALSE(m_model.hasEnteredDate());
    passTime(26h);
    EXPECT_EQ(m_model.startDate(), march9 + Seconds(12.5));
    m_model.renewDates();
    EXPECT_EQ(m_model.startDate(), march9 + Seconds(12.5) + 26h);
    EXPECT_EQ(m_model.endDate(), march9 + Seconds(12.5) + 27h);
}

TEST_F(FreshDatesTest, AnEnteredMinuteKeepsBothDates) {
    for (const auto entered : {march9 + 1min, march9 + 24h, march9 + -1h}) {
        for (const bool isStart : {true, false}) {
            DateTimeModel model({m_clock, m_defaults, m_currentZone, m_zones, locale("en_US")});
            const auto other = isStart ? model.endDate() : model.startDate();
            if (isStart)
                model.setStartDate(entered);
            else
                model.setEndDate(entered);
            EXPECT_TRUE(model.hasEnteredDate());
            passTime(1h);
            model.renewDates();
            EXPECT_EQ(isStart ? model.startDate() : model.endDate(), entered);
            EXPECT_EQ(isStart ? model.endDate() : model.startDate(), other);
        }
    }
}

TEST_F(FreshDatesTest, ADateThatWasEnteredOnceStaysSoWhenItGoesBack) {
    const auto before = m_model.startDate();
    m_model.setStartDate(before + 5min);
    m_model.setStartDate(before);
    EXPECT_TRUE(m_model.hasEnteredDate());
}

TEST_F(FreshDatesTest, TheSameMinuteIsNotEntered) {
    m_model.setStartDate(m_model.startDate());
    m_model.setStartDate(march9);
    m_model.setEndDate(march9 + 1h + 59s);
    m_model.setIsRange(true);
    m_model.setIncludeTime(false);
    EXPECT_FALSE(m_model.hasEnteredDate());
}

TEST_F(FreshDatesTest, TheMinuteIsThatOfTheZonesClocks) {
    // Liberia's clocks were 44 minutes and 30 seconds behind Greenwich's until 1972.
    m_currentZone.set(zone("Africa/Monrovia"));
    m_clock.set({-10});
    DateTimeModel model({m_clock, m_defaults, m_currentZone, m_zones, locale("en_US")});
    model.setStartDate({10});
    EXPECT_FALSE(model.hasEnteredDate());
    model.setStartDate({31});
    EXPECT_TRUE(model.hasEnteredDate());
}

TEST_F(FreshDatesTest, TheDistanceIsThatOfTheMinutesShown) {
    // As opening the time entry does, each time in another second of the minute.
    for (const auto seconds : {50s, 10s, 59s}) {
        passTime(seconds);
        m_model.renewDates();
        m_model.setStartDate(startOfMinute(m_model.startDate(), m_currentZone.current()));
    }
    m_model.renewDates();
    EXPECT_FALSE(m_model.hasEnteredDate());
    EXPECT_EQ(m_model.endDate(), m_model.startDate() + 1h);
    m_model.setEndDate(m_model.startDate() + -3h);
    m_model.returnToNow();
    EXPECT_EQ(m_model.startDate(), m_clock.now());
    EXPECT_EQ(m_model.endDate(), m_clock.now() + -3h);
}

TEST_F(FreshDatesTest, NowTakesBackWhatWasEntered) {
    m_model.setStartDate(march9 + 24h);
    passTime(2h);
    m_model.returnToNow();
    EXPECT_FALSE(m_model.hasEnteredDate());
    EXPECT_EQ(m_model.startDate(), m_clock.now());
    passTime(2h);
    m_model.renewDates();
    EXPECT_EQ(m_model.startDate(), m_clock.now());
}

TEST_F(FreshDatesTest, WhatTheClockChangesIsAnnouncedButNotAsTheUsers) {
    int changes = 0;
    int users = 0;
    const auto start = m_model.startDate();
    QObject::connect(&m_model, &DateTimeModel::objectWillChange, [&] {
        ++changes;
        EXPECT_EQ(m_model.startDate(), start);
    });
    QObject::connect(&m_model, &DateTimeModel::userWillChange, [&] {
        EXPECT_EQ(changes, 2);
        ++users;
    });
    m_model.renewDates();
    m_model.setEndDate({1});
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(users, 1);
}

} // namespace
} // namespace quorvane
