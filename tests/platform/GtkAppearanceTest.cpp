// SPDX-License-Identifier: MIT
#include <platform/GtkAppearance.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Scheme = DesktopAppearance::Scheme;

std::optional<Scheme> schemeOf(const QString& themeName) {
    return appearanceOf({.themeName = themeName}).scheme;
}

TEST(GtkAppearance, ThemeIsDarkByItsName) {
    for (const auto& dark :
         {u"Greybird-dark"_s,
          u"Adwaita-dark"_s,
          u"Adwaita:dark"_s,
          u"Mint-Y-Dark-Aqua"_s,
          u"Breeze-Dark"_s,
          u"BlackMATE"_s,
          u"HighContrastInverse"_s,
          u"dark"_s})
        EXPECT_EQ(schemeOf(dark), Scheme::Dark) << dark.toStdString();
    for (const auto& light :
         {u"Greybird"_s, u"Adwaita"_s, u"Arc-Darker"_s, u"HighContrast"_s, u"Raleigh"_s, QString()})
        EXPECT_EQ(schemeOf(light), Scheme::Light) << light.toStdString();
}

TEST(GtkAppearance, WishForDarkThemesBeatsTheName) {
    EXPECT_EQ(
        appearanceOf({.themeName = u"Adwaita"_s, .prefersDarkTheme = true}).scheme, Scheme::Dark);
    EXPECT_EQ(
        appearanceOf({.themeName = u"Adwaita-dark"_s, .prefersDarkTheme = false}).scheme,
        Scheme::Dark);
    EXPECT_EQ(appearanceOf({.prefersDarkTheme = true}).scheme, Scheme::Dark);
}

TEST(GtkAppearance, WithoutSettingsNothingIsKnown) {
    EXPECT_EQ(appearanceOf({}), DesktopAppearance());
    EXPECT_EQ(appearanceOf({.prefersDarkTheme = false}), DesktopAppearance());
}

TEST(GtkAppearance, ContrastAndMotionAreRead) {
    EXPECT_TRUE(appearanceOf({.themeName = u"HighContrast"_s}).wantsMoreContrast);
    EXPECT_TRUE(appearanceOf({.themeName = u"ContrastHighInverse"_s}).wantsMoreContrast);
    EXPECT_FALSE(appearanceOf({.themeName = u"Adwaita"_s}).wantsMoreContrast);
    EXPECT_TRUE(appearanceOf({.animates = false}).wantsLessMotion);
    EXPECT_FALSE(appearanceOf({.animates = true}).wantsLessMotion);
}

TEST(GtkAppearance, FontIsAFamilyAndASize) {
    using Font = DesktopAppearance::Font;
    EXPECT_EQ(fontNamed(u"Sans 10"_s), (Font{u"Sans"_s, 10}));
    EXPECT_EQ(fontNamed(u"Noto Sans 10.5"_s), (Font{u"Noto Sans"_s, 10.5}));
    EXPECT_EQ(fontNamed(u"Ubuntu Semi-Bold Italic 11"_s), (Font{u"Ubuntu"_s, 11}));
    EXPECT_EQ(fontNamed(u"Cantarell, Sans Bold 11"_s), (Font{u"Cantarell"_s, 11}));
    EXPECT_EQ(fontNamed(u"  Sans   9 "_s), (Font{u"Sans"_s, 9}));
}

TEST(GtkAppearance, FontWithoutASizeOrAFamilyIsNone) {
    for (const auto& none :
         {QString(),
          u"Sans"_s,
          u"10"_s,
          u"Sans 0"_s,
          u"Sans -3"_s,
          u"Sans 13px"_s,
          u"Sans nan"_s,
          u"Sans inf"_s,
          u"Sans 1e9"_s,
          u", 10"_s})
        EXPECT_EQ(fontNamed(none), std::nullopt) << none.toStdString();
}

} // namespace
} // namespace quorvane
