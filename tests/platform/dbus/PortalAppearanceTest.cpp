// SPDX-License-Identifier: MIT
#include "support/FakePortal.h"
#include "support/PrivateBus.h"

#include <platform_dbus/PortalAppearance.h>

#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <ostream>

namespace quorvane {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Accent = DesktopAppearance::Accent;
using Scheme = DesktopAppearance::Scheme;

const auto appearanceSettings = u"org.freedesktop.appearance"_s;
const auto interfaceSettings = u"org.gnome.desktop.interface"_s;
const auto scheme = u"color-scheme"_s;
const auto accentColor = u"accent-color"_s;

constexpr uint dark = 1;
constexpr uint light = 2;

QVariant accent(double red, double green, double blue) {
    return QVariant::fromValue(Triple{red, green, blue});
}

QVariant wrapped(const QVariant& value) {
    return QVariant::fromValue(QDBusVariant(value));
}

class PortalAppearanceTest : public testing::Test {
protected:
    PrivateBus bus;
    FakePortal portal{bus.connection()};
    std::unique_ptr<PortalAppearance> appearance =
        std::make_unique<PortalAppearance>(bus.connection());
    int changes = 0;

    PortalAppearanceTest() {
        appearance->onChanged([this] { ++changes; });
    }

    void read() {
        portal.appear();
        appearance->read();
    }

    void readAs(Scheme expected, const FakePortal::Settings& settings) {
        portal.answer(settings);
        read();
        EXPECT_TRUE(comesTo([&] { return appearance->current().scheme == expected; }));
    }

    static bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition);
    }

    /// Whatever was sent before has been received when the scheme of this later signal is there.
    void catchUp() {
        const bool isDark = appearance->current().scheme == Scheme::Dark;
        portal.announce(appearanceSettings, scheme, isDark ? light : dark);
        EXPECT_TRUE(comesTo([&] {
            return appearance->current().scheme == (isDark ? Scheme::Light : Scheme::Dark);
        }));
    }
};

struct Told {
    const char* name;
    FakePortal::Settings settings;
    DesktopAppearance meaning;
};

void PrintTo(const Told& told, std::ostream* out) {
    *out << told.name;
}

class PortalAppearanceTold : public PortalAppearanceTest,
                             public testing::WithParamInterface<Told> {};

TEST_P(PortalAppearanceTold, IsUnderstood) {
    auto settings = GetParam().settings;
    // Always one more setting, whose arrival shows that the reading is complete.
    const bool tellsMotion = settings[interfaceSettings].contains(u"enable-animations"_s);
    if (!tellsMotion)
        settings[interfaceSettings].insert(u"enable-animations"_s, false);
    portal.answer(settings);
    read();
    ASSERT_TRUE(comesTo([this] { return changes > 0; }));
    auto expected = GetParam().meaning;
    expected.wantsLessMotion = true;
    EXPECT_EQ(appearance->current(), expected);
    EXPECT_EQ(changes, 1);
}

FakePortal::Settings one(const QString& key, const QVariant& value) {
    return {{appearanceSettings, {{key, value}}}};
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

INSTANTIATE_TEST_SUITE_P(
    ,
    PortalAppearanceTold,
    testing::Values(
        Told{"Nothing", {}, {}},
        Told{"NoPreference", one(scheme, 0U), {}},
        Told{"Dark", one(scheme, dark), {.scheme = Scheme::Dark}},
        Told{"Light", one(scheme, light), {.scheme = Scheme::Light}},
        Told{"SchemeOfTheFuture", one(scheme, 3U), {}},
        Told{"SchemeWrappedTwice", one(scheme, wrapped(dark)), {.scheme = Scheme::Dark}},
        Told{
            "SchemeWrappedThrice", one(scheme, wrapped(wrapped(light))), {.scheme = Scheme::Light}},
        Told{"SchemeAsText", one(scheme, u"1"_s), {}},
        Told{"SchemeAsSignedNumber", one(scheme, 1), {}},
        Told{"Accent", one(accentColor, accent(0.25, 0, 1)), {.accent = Accent{0.25, 0, 1}}},
        Told{
            "AccentWrapped",
            one(accentColor, wrapped(accent(1, 1, 0))),
            {.accent = Accent{1, 1, 0}}},
        Told{"AccentTooSmall", one(accentColor, accent(-1, -1, -1)), {}},
        Told{"AccentTooGreat", one(accentColor, accent(0, 0, 1.5)), {}},
        Told{"AccentInfinite", one(accentColor, accent(infinity, 0, 0)), {}},
        Told{"AccentNotANumber", one(accentColor, accent(0, nan, 0)), {}},
        Told{"AccentAsText", one(accentColor, u"#3457d5"_s), {}},
        Told{"AccentAsList", one(accentColor, QVariant::fromValue(QList<double>{0, 0, 1})), {}},
        Told{"HighContrast", one(u"contrast"_s, 1U), {.wantsMoreContrast = true}},
        Told{"NormalContrast", one(u"contrast"_s, 0U), {}},
        Told{"ContrastAsBool", one(u"contrast"_s, true), {}},
        Told{"ReducedMotion", one(u"reduced-motion"_s, 1U), {}},
        Told{"SettingNobodyKnows", one(u"font-scale"_s, 2.0), {}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(PortalAppearanceTest, BeforeItIsAskedNothingIsKnownAndNobodyIsAsked) {
    portal.answer(one(scheme, dark));
    portal.appear();
    EXPECT_EQ(appearance->current(), DesktopAppearance{});
    EXPECT_TRUE(portal.questions().isEmpty());
}

TEST_F(PortalAppearanceTest, AsksForNothingElseThanItUses) {
    readAs(Scheme::Dark, one(scheme, dark));
    EXPECT_EQ(
        portal.questions().constFirst().arguments().constFirst().toStringList(),
        (QStringList{appearanceSettings, interfaceSettings}));
}

TEST_F(PortalAppearanceTest, MotionIsUnwelcomeInEitherOfTwoWays) {
    readAs(Scheme::Dark, one(scheme, dark));
    const auto lessMotion = [this] {
        return appearance->current().wantsLessMotion;
    };
    portal.announce(appearanceSettings, u"reduced-motion"_s, 1U);
    EXPECT_TRUE(comesTo(lessMotion));
    portal.announce(interfaceSettings, u"enable-animations"_s, false);
    portal.announce(appearanceSettings, u"reduced-motion"_s, 0U);
    catchUp();
    EXPECT_TRUE(lessMotion());
    portal.announce(interfaceSettings, u"enable-animations"_s, true);
    EXPECT_TRUE(comesTo([&] { return !lessMotion(); }));
}

TEST_F(PortalAppearanceTest, FollowsChanges) {
    readAs(Scheme::Light, one(scheme, light));
    EXPECT_EQ(changes, 1);
    portal.announce(appearanceSettings, scheme, dark);
    EXPECT_TRUE(comesTo([this] { return appearance->current().scheme == Scheme::Dark; }));
    portal.announce(appearanceSettings, accentColor, accent(1, 0.5, 0));
    EXPECT_TRUE(comesTo([this] { return appearance->current().accent == Accent{1, 0.5, 0}; }));
    portal.announce(appearanceSettings, accentColor, accent(-1, -1, -1));
    EXPECT_TRUE(comesTo([this] { return !appearance->current().accent; }));
    EXPECT_EQ(changes, 4);
}

TEST_F(PortalAppearanceTest, WhatStaysAsItIsIsNoChange) {
    readAs(Scheme::Light, one(scheme, light));
    portal.announce(appearanceSettings, scheme, light);
    portal.announce(appearanceSettings, u"font-scale"_s, 2.0);
    portal.announce(u"org.example.other"_s, scheme, dark);
    catchUp();
    EXPECT_EQ(changes, 2);
}

TEST_F(PortalAppearanceTest, ChangeOfAWrongTypeChangesNothing) {
    readAs(Scheme::Dark, one(scheme, dark));
    portal.announce(appearanceSettings, scheme, u"light"_s);
    portal.announce(appearanceSettings, accentColor, 7U);
    portal.announce(interfaceSettings, u"enable-animations"_s, 0U);
    portal.announce(appearanceSettings, u"contrast"_s, 1U);
    EXPECT_TRUE(comesTo([this] { return appearance->current().wantsMoreContrast; }));
    EXPECT_EQ(
        appearance->current(),
        (DesktopAppearance{.scheme = Scheme::Dark, .wantsMoreContrast = true}));
    EXPECT_EQ(changes, 2);
}

// Qt ends the process where a structure stands for what a slot takes.
TEST_F(PortalAppearanceTest, ChangeOfOtherArgumentsChangesNothing) {
    readAs(Scheme::Dark, one(scheme, dark));
    const auto structure = QVariant::fromValue(Triple{1, 2, 3});
    portal.announceAnything({structure, structure, structure});
    portal.announceAnything({appearanceSettings, structure, QVariant::fromValue(QDBusVariant(1U))});
    portal.announceAnything({appearanceSettings, scheme, structure});
    portal.announceAnything({QVariantMap{{scheme, 1U}}, scheme, QVariantMap()});
    portal.announceAnything({appearanceSettings});
    portal.announceAnything({});
    portal.announce(appearanceSettings, u"contrast"_s, 1U);
    EXPECT_TRUE(comesTo([this] { return appearance->current().wantsMoreContrast; }));
    EXPECT_EQ(appearance->current().scheme, Scheme::Dark);
}

TEST_F(PortalAppearanceTest, AnErrorKeepsWhatIsKnown) {
    readAs(Scheme::Dark, one(scheme, dark));
    portal.answerWithError();
    appearance->read();
    EXPECT_TRUE(comesTo([this] { return portal.questions().size() == 2; }));
    portal.announce(appearanceSettings, u"contrast"_s, 1U);
    EXPECT_TRUE(comesTo([this] { return changes == 2; }));
    EXPECT_EQ(appearance->current().scheme, Scheme::Dark);
}

TEST_F(PortalAppearanceTest, AnAnswerOfAnotherTypeKeepsWhatIsKnown) {
    readAs(Scheme::Dark, one(scheme, dark));
    portal.answer(u"all is well"_s);
    appearance->read();
    EXPECT_TRUE(comesTo([this] { return portal.questions().size() == 2; }));
    portal.announce(appearanceSettings, u"contrast"_s, 1U);
    EXPECT_TRUE(comesTo([this] { return changes == 2; }));
    EXPECT_EQ(appearance->current().scheme, Scheme::Dark);
}

TEST_F(PortalAppearanceTest, APortalThatHangsIsNotWaitedFor) {
    read();
    EXPECT_TRUE(comesTo([this] { return portal.questions().size() == 1; }));
    EXPECT_EQ(appearance->current(), DesktopAppearance{});
    portal.announce(appearanceSettings, scheme, dark);
    EXPECT_TRUE(comesTo([this] { return appearance->current().scheme == Scheme::Dark; }));
    portal.answer(one(scheme, light));
    EXPECT_TRUE(comesTo([this] { return appearance->current().scheme == Scheme::Light; }));
}

TEST_F(PortalAppearanceTest, APortalThatAnswersTooLateIsFollowedAllTheSame) {
    PortalAppearance hasty(bus.connection(), 10ms);
    portal.appear();
    hasty.read();
    EXPECT_TRUE(comesTo([this] { return portal.questions().size() == 1; }));
    // That a question is given up shows nowhere but in the log.
    const QDeadlineTimer givenUp(100ms);
    EXPECT_TRUE(comesTo([&] { return givenUp.hasExpired(); }));
    portal.answer(one(scheme, light));
    portal.announce(appearanceSettings, scheme, dark);
    EXPECT_TRUE(comesTo([&] { return hasty.current().scheme == Scheme::Dark; }));
}

TEST_F(PortalAppearanceTest, NobodyIsTheWorseForAnAnswerThatComesAfterTheEnd) {
    read();
    EXPECT_TRUE(comesTo([this] { return portal.questions().size() == 1; }));
    appearance.reset();
    portal.answer(one(scheme, dark));
    PortalAppearance later(bus.connection());
    later.read();
    EXPECT_TRUE(comesTo([&] { return later.current().scheme == Scheme::Dark; }));
    EXPECT_EQ(changes, 0);
}

TEST_F(PortalAppearanceTest, APortalThatComesLateIsAskedWhenItComes) {
    portal.answer(one(scheme, dark));
    appearance->read();
    portal.appear();
    EXPECT_TRUE(comesTo([this] { return appearance->current().scheme == Scheme::Dark; }));
}

TEST_F(PortalAppearanceTest, APortalThatStartsAnewIsAskedAnew) {
    readAs(Scheme::Dark, one(scheme, dark));
    portal.vanish();
    portal.answer(one(u"contrast"_s, 1U));
    portal.appear();
    EXPECT_TRUE(comesTo([this] { return appearance->current().wantsMoreContrast; }));
    EXPECT_EQ(appearance->current().scheme, Scheme::Dark);
}

TEST_F(PortalAppearanceTest, ReadingTwiceFollowsOnce) {
    readAs(Scheme::Light, one(scheme, light));
    appearance->read();
    EXPECT_TRUE(comesTo([this] { return portal.questions().size() == 2; }));
    portal.announce(appearanceSettings, scheme, dark);
    EXPECT_TRUE(comesTo([this] { return appearance->current().scheme == Scheme::Dark; }));
    EXPECT_EQ(changes, 2);
}

TEST(PortalAppearance, WithoutABusNothingIsKnown) {
    PortalAppearance appearance(QDBusConnection(u"no such connection"_s));
    appearance.read();
    EXPECT_EQ(appearance.current(), DesktopAppearance{});
}

} // namespace

} // namespace quorvane
