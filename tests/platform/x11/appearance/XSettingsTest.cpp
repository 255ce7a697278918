// SPDX-License-Identifier: MIT
#include "SettingsBytes.h"

#include <x11_appearance/XSettings.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Order = SettingsBytes::Order;

QByteArray sample(Order order) {
    return SettingsBytes(order)
        .text("Net/ThemeName", "Adwaita-dark")
        .color("Gdk/Example")
        .number("Gtk/ApplicationPreferDarkTheme", 1)
        .number("Gtk/EnableAnimations", 0)
        .text("Gtk/FontName", "Noto Sans 11")
        .bytes();
}

class XSettingsInEachOrder : public testing::TestWithParam<Order> {};

TEST_P(XSettingsInEachOrder, AreRead) {
    const auto settings = XSettings::parse(sample(GetParam()));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->text(u"Net/ThemeName"_s), u"Adwaita-dark"_s);
    EXPECT_EQ(settings->number(u"Gtk/ApplicationPreferDarkTheme"_s), 1);
    EXPECT_EQ(settings->number(u"Net/ThemeName"_s), std::nullopt) << "it is a text";
    EXPECT_EQ(settings->text(u"Gdk/Example"_s), std::nullopt) << "it is a colour";
    EXPECT_EQ(settings->text(u"Gtk/Other"_s), std::nullopt);
    const auto gtk = settings->gtkSettings();
    EXPECT_EQ(gtk.themeName, u"Adwaita-dark"_s);
    EXPECT_EQ(gtk.prefersDarkTheme, true);
    EXPECT_EQ(gtk.fontName, u"Noto Sans 11"_s);
    EXPECT_EQ(gtk.animates, false);
}

TEST_P(XSettingsInEachOrder, AreNoneWhereTheyEndEarly) {
    const auto whole = sample(GetParam());
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(XSettings::parse(whole.first(length))) << length;
}

TEST_P(XSettingsInEachOrder, AreNoneWhereAByteOfALengthOrTypeLies) {
    // Whatever byte is wrong, the parser stays inside what it was given; the sanitizers see it.
    const auto whole = sample(GetParam());
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const char byte : {'\xff', '\x7f', '\x80'}) {
            auto broken = whole;
            broken[at] = byte;
            (void) XSettings::parse(broken);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Orders,
    XSettingsInEachOrder,
    testing::Values(Order::LeastSignificantFirst, Order::MostSignificantFirst));

TEST(XSettings, OtherByteOrdersAreUnknown) {
    auto bytes = sample(Order::LeastSignificantFirst);
    bytes[0] = 2;
    EXPECT_FALSE(XSettings::parse(bytes));
}

TEST(XSettings, WrongByteOrderIsNotBelieved) {
    auto bytes = sample(Order::LeastSignificantFirst);
    bytes[0] = 1;
    EXPECT_FALSE(XSettings::parse(bytes));
}

TEST(XSettings, CountThatLiesEndsWithTheBytes) {
    auto bytes = SettingsBytes(Order::LeastSignificantFirst).number("Gtk/A", 1).bytes();
    for (int i = 8; i < 12; ++i)
        bytes[i] = '\xff';
    EXPECT_FALSE(XSettings::parse(bytes));
}

TEST(XSettings, NoSettingsAreSettingsToo) {
    const auto settings = XSettings::parse(SettingsBytes(Order::LeastSignificantFirst).bytes());
    ASSERT_TRUE(settings);
    EXPECT_EQ(appearanceOf(settings->gtkSettings()), DesktopAppearance());
}

} // namespace
} // namespace quorvane
