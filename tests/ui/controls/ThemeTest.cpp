// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/Theme.h>

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <ostream>
#include <tuple>
#include <vector>

namespace quorvane {
namespace {

struct Token {
    const char* name;
    QColor Theme::*color;
    QRgb light; ///< with alpha
    QRgb dark;
};

constexpr QRgb tint(double opacity) {
    return qRgba(0x14, 0x16, 0x1c, qRound(opacity * 255));
}

constexpr QRgb white(double opacity) {
    return qRgba(255, 255, 255, qRound(opacity * 255));
}

constexpr QRgb black(double opacity) {
    return qRgba(0, 0, 0, qRound(opacity * 255));
}

constexpr QRgb faded(QRgb color, double opacity) {
    return qRgba(qRed(color), qGreen(color), qBlue(color), qRound(opacity * 255));
}

const Token tokens[] = {
    {"win", &Theme::windowBackground, 0xfff6f6f8, 0xff1d1e21},
    {"base", &Theme::controlBackground, 0xffffffff, 0xff2a2b2f},
    {"pop", &Theme::popoverBackground, 0xffffffff, 0xff27282c},
    {"text", &Theme::text, 0xff1a1b1e, 0xfff0f1f3},
    {"text2", &Theme::secondaryText, 0xff5c6068, 0xffaeb2bb},
    {"off", &Theme::disabledText, 0xffa4a7ae, 0xff62656d},
    {"accent", &Theme::accent, 0xff3457d5, 0xff4666ea},
    {"accentHover", &Theme::accentHover, 0xff2c4dc4, 0xff3e5de0},
    {"accentPress", &Theme::accentPressed, 0xff2542ac, 0xff3652ca},
    {"onAccent", &Theme::onAccent, 0xffffffff, 0xffffffff},
    {"accentText", &Theme::accentText, 0xff2f50c8, 0xffa6b7ff},
    {"chosenEdge", &Theme::selectedBorder, faded(0x2f50c8, 0.25), faded(0xa6b7ff, 0.25)},
    {"suggestedEdge", &Theme::suggestedBorder, faded(0x5c6068, 0.3), faded(0xaeb2bb, 0.3)},
    {"popEdge", &Theme::popoverBorder, tint(0.13), white(0.12)},
    {"sep", &Theme::border, tint(0.13), white(0.12)},
    {"line", &Theme::divider, tint(0.09), white(0.08)},
    {"outline", &Theme::checkBoxBorder, 0xff85888f, 0xff7c8089},
    {"track", &Theme::switchTrack, 0xff85888f, 0xff6a6e77},
    {"quiet", &Theme::subtleFill, tint(0.05), white(0.065)},
    {"hover", &Theme::hoverOverlay, tint(0.05), white(0.06)},
    {"press", &Theme::pressOverlay, tint(0.10), white(0.11)},
    {"green", &Theme::success, 0xff1a7a37, 0xff63d387},
    {"danger", &Theme::danger, 0xffc4302b, 0xffff8a80},
    {"dangerHover", &Theme::dangerHover, faded(0xc4302b, 0.10), faded(0xff8a80, 0.14)},
    {"dangerPress", &Theme::dangerPressed, faded(0xc4302b, 0.18), faded(0xff8a80, 0.22)},
    {"yellow", &Theme::star, 0xfff4b90b, 0xfff5c542},
    {"yellowEdge", &Theme::starBorder, 0xffb07d00, 0xfff5c542},
    {"scrim", &Theme::scrim, tint(0.24), black(0.5)},
};

TEST(Theme, BuiltInPalettesGiveTheBuiltInColors) {
    const auto light = Theme::of(builtInPalette(ColorScheme::Light));
    const auto dark = Theme::of(builtInPalette(ColorScheme::Dark));
    for (const auto& token : tokens) {
        EXPECT_EQ((light.*token.color).rgba(), token.light) << token.name << " in light";
        EXPECT_EQ((dark.*token.color).rgba(), token.dark) << token.name << " in dark";
    }
}

TEST(Theme, BuiltInShadowFadesOutwards) {
    constexpr std::array light{0.028, 0.028, 0.022, 0.022, 0.016, 0.016};
    constexpr std::array dark{0.10, 0.10, 0.08, 0.08, 0.06, 0.06};
    for (std::size_t step = 0; step < light.size(); ++step) {
        EXPECT_EQ(Theme::builtIn(ColorScheme::Light).shadow.at(step).rgba(), tint(light.at(step)));
        EXPECT_EQ(Theme::builtIn(ColorScheme::Dark).shadow.at(step).rgba(), black(dark.at(step)));
    }
}

struct Desktop {
    const char* name;
    QRgb win;
    QRgb base;
    QRgb text;
    QRgb accent;

    [[nodiscard]] QPalette palette() const {
        QPalette palette;
        palette.setColor(QPalette::Window, win);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Highlight, accent);
        return palette;
    }
};

void PrintTo(const Desktop& desktop, std::ostream* out) {
    *out << desktop.name;
}

class ThemeOfADesktop : public testing::TestWithParam<Desktop> {
protected:
    Theme theme = Theme::of(GetParam().palette());

    /// As it is seen: in eight bits a channel.
    static double ratio(const QColor& foreground, const QColor& background) {
        return contrastRatio(QColor(foreground.rgb()), QColor(background.rgb()));
    }
};

TEST_P(ThemeOfADesktop, KeepsItsBackgroundsAndText) {
    EXPECT_EQ(theme.windowBackground.rgb(), GetParam().win);
    EXPECT_EQ(theme.controlBackground.rgb(), GetParam().base);
    EXPECT_EQ(theme.text.rgb(), GetParam().text);
}

TEST_P(ThemeOfADesktop, CaptionsAreReadableOnEveryBackground) {
    EXPECT_GE(ratio(theme.secondaryText, theme.windowBackground), 4.5);
    EXPECT_GE(ratio(theme.secondaryText, theme.controlBackground), 4.5);
    EXPECT_GE(ratio(theme.secondaryText, theme.popoverBackground), 4.5);
}

TEST_P(ThemeOfADesktop, TextOnTheAccentIsReadableInEveryState) {
    EXPECT_GE(ratio(theme.onAccent, theme.accent), 4.5);
    EXPECT_GE(ratio(theme.onAccent, theme.accentHover), 4.5);
    EXPECT_GE(ratio(theme.onAccent, theme.accentPressed), 4.5);
}

TEST_P(ThemeOfADesktop, AccentAsForegroundIsReadableUnderItsOwnTint) {
    const auto tinted = blended(withOpacity(theme.accentText, 0.15), theme.controlBackground);
    EXPECT_GE(ratio(theme.accentText, tinted), 4.5);
    EXPECT_GE(ratio(theme.accentText, theme.controlBackground), 4.5);
}

INSTANTIATE_TEST_SUITE_P(
    Odd,
    ThemeOfADesktop,
    testing::Values(
        Desktop{"YellowAccent", 0xfff6f5f4, 0xffffffff, 0xff2e3436, 0xfff6d32d},
        Desktop{"YellowAccentOnDark", 0xff242424, 0xff1e1e1e, 0xffffffff, 0xfff6d32d},
        Desktop{"LimeAccent", 0xfff6f5f4, 0xffffffff, 0xff2e3436, 0xff00ff00},
        Desktop{"LimeAccentOnDark", 0xff303030, 0xff202020, 0xffeeeeee, 0xffbfff00},
        Desktop{"PaleGreyText", 0xfff0f0f0, 0xffffffff, 0xffb0b0b0, 0xff9a9a9a},
        Desktop{"DimTextOnDark", 0xff101010, 0xff202020, 0xff606060, 0xff404040},
        Desktop{"WhiteOnBlack", 0xff000000, 0xff000000, 0xffffffff, 0xffffffff},
        Desktop{"WhiteOnBlackWithBlackAccent", 0xff000000, 0xff000000, 0xffffffff, 0xff000000},
        Desktop{"BlackOnWhite", 0xffffffff, 0xffffffff, 0xff000000, 0xff000000},
        Desktop{"BlackOnWhiteWithWhiteAccent", 0xffffffff, 0xffffffff, 0xff000000, 0xffffffff},
        Desktop{"BlueishLight", 0xffeff0f1, 0xfffcfcfc, 0xff232629, 0xff3daee9},
        Desktop{"BlueishDark", 0xff2a2e32, 0xff1b1e20, 0xfffcfcfc, 0xff3daee9},
        Desktop{"OrangeAccent", 0xfffafafa, 0xffffffff, 0xff3d3d3d, 0xffe95420},
        Desktop{"MidGreyBackgrounds", 0xffc0c0c0, 0xffd4d4d4, 0xff000000, 0xff0a246a}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(Theme, YellowAndLimeCarryDarkTextAndStayThemselves) {
    for (const QRgb accent : {0xffffff00, 0xfff6d32d, 0xff00ff00, 0xffbfff00}) {
        const auto theme =
            Theme::of(Desktop{"", 0xfff6f5f4, 0xffffffff, 0xff2e3436, accent}.palette());
        EXPECT_EQ(theme.accent.rgb(), accent);
        EXPECT_LT(theme.onAccent.lightness(), 40);
    }
}

TEST(Theme, AccentThatIsDarkEnoughIsKept) {
    const auto theme =
        Theme::of(Desktop{"", 0xfff6f5f4, 0xffffffff, 0xff2e3436, 0xff1c71d8}.palette());
    EXPECT_EQ(theme.accent.rgb(), 0xff1c71d8);
    EXPECT_EQ(theme.onAccent, QColor(Qt::white));
}

/// The built-in theme in high contrast, with the accents that are hardest to read.
class ThemeOfHighContrast
    : public testing::TestWithParam<std::tuple<ColorScheme, std::optional<QRgb>>> {
protected:
    ColorScheme scheme = std::get<0>(GetParam());
    QPalette palette = builtInPalette(scheme, ContrastLevel::High, accent());
    Theme theme = Theme::of(palette);

    static std::optional<QColor> accent() {
        const auto rgb = std::get<1>(GetParam());
        return rgb ? std::optional(QColor(*rgb)) : std::nullopt;
    }

    /// Of what is seen, in eight bits a channel.
    static double ratio(const QColor& foreground, const QColor& background) {
        return contrastRatio(QColor(foreground.rgb()), QColor(background.rgb()));
    }

    [[nodiscard]] std::array<QColor, 3> backgrounds() const {
        return {theme.windowBackground, theme.controlBackground, theme.popoverBackground};
    }
};

TEST_P(ThemeOfHighContrast, IsBlackOnWhiteOrWhiteOnBlack) {
    const bool isDark = scheme == ColorScheme::Dark;
    EXPECT_EQ(colorScheme(palette), scheme);
    EXPECT_EQ(theme.text, QColor(isDark ? Qt::white : Qt::black));
    for (const auto& background : backgrounds())
        EXPECT_EQ(background, QColor(isDark ? Qt::black : Qt::white));
}

// WCAG 2.1, 1.4.6: 7:1.
TEST_P(ThemeOfHighContrast, TextIsReadWellOnEveryBackgroundInEveryState) {
    for (const auto& background : backgrounds()) {
        for (const auto& overlay : {theme.subtleFill, theme.hoverOverlay, theme.pressOverlay}) {
            const auto seen = blended(overlay, background);
            EXPECT_GE(ratio(theme.text, seen), 7);
            EXPECT_GE(ratio(theme.secondaryText, seen), 7);
            EXPECT_GE(ratio(theme.success, seen), 7);
        }
        EXPECT_GE(ratio(theme.danger, blended(theme.dangerHover, background)), 7);
        EXPECT_GE(ratio(theme.danger, blended(theme.dangerPressed, background)), 7);
        EXPECT_GE(ratio(theme.accentText, background), 7);
        EXPECT_GE(
            ratio(theme.accentText, blended(withOpacity(theme.accentText, 0.15), background)), 7);
        // The strongest tint: a chosen zone that is pressed.
        EXPECT_GE(ratio(theme.text, blended(withOpacity(theme.accentText, 0.26), background)), 7);
        EXPECT_GE(ratio(theme.disabledText, background), 4.5);
    }
    for (const auto& fill : {theme.accent, theme.accentHover, theme.accentPressed})
        EXPECT_GE(ratio(theme.onAccent, fill), 7);
}

TEST_P(ThemeOfHighContrast, EdgesAreAsStrongAsText) {
    for (const auto& edge :
         {theme.border,
          theme.divider,
          theme.checkBoxBorder,
          theme.keyCapBorder,
          theme.popoverBorder})
        EXPECT_EQ(edge, theme.text);
    EXPECT_EQ(theme.selectedBorder, theme.accentText);
    EXPECT_EQ(theme.suggestedBorder, theme.secondaryText);
}

// WCAG 2.1, 1.4.11: 3:1.
TEST_P(ThemeOfHighContrast, SwitchIsSeenOnItsBackgroundAndItsKnobOnBothTracks) {
    EXPECT_GE(ratio(theme.switchTrack, theme.windowBackground), 3);
    EXPECT_GE(ratio(theme.switchKnob, theme.switchTrack), 3);
    EXPECT_GE(ratio(theme.accent, theme.windowBackground), 3);
    EXPECT_GE(ratio(theme.switchKnob, theme.accent), 3);
}

TEST_P(ThemeOfHighContrast, SelectedTextIsReadable) {
    EXPECT_GE(
        ratio(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 7);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    ThemeOfHighContrast,
    testing::Combine(
        testing::Values(ColorScheme::Light, ColorScheme::Dark),
        testing::Values(
            std::nullopt,
            0xff000000,
            0xffffffff,
            0xff808080,
            0xfff6d32d,
            0xff00ff00,
            0xff3584e4,
            0xffff0000)));

TEST(Theme, BuiltInAccentIsTheUsersWhereThereIsOne) {
    for (const auto scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const auto theme =
            Theme::of(builtInPalette(scheme, ContrastLevel::Normal, QColor(0x1c71d8)));
        EXPECT_EQ(theme.accent, QColor(0x1c71d8));
        EXPECT_EQ(theme.windowBackground, Theme::builtIn(scheme).windowBackground);
        EXPECT_EQ(theme.secondaryText, Theme::builtIn(scheme).secondaryText);
        EXPECT_GE(contrastRatio(theme.accentText, theme.controlBackground), 4.5);
    }
}

TEST(Theme, SelectedTextOfTheBuiltInThemeIsReadableOnAnyAccent) {
    for (const QRgb accent : {0xff3daee9, 0xfff6d32d, 0xffffffff, 0xff000000}) {
        const auto palette =
            builtInPalette(ColorScheme::Light, ContrastLevel::Normal, QColor(accent));
        EXPECT_GE(
            contrastRatio(
                palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
            4.5);
    }
}

TEST(Theme, DesktopsOwnBlackOnWhiteIsHighContrastAndAlmostBlackIsNot) {
    const auto popEdge = [](QRgb win, QRgb base, QRgb text) {
        return Theme::of(Desktop{"", win, base, text, 0xff3584e4}.palette()).popoverBorder;
    };
    EXPECT_EQ(popEdge(0xffffffff, 0xffffffff, 0xff000000), QColor(Qt::black));
    EXPECT_EQ(popEdge(0xff000000, 0xff000000, 0xffffffff), QColor(Qt::white));
    EXPECT_LT(popEdge(0xfff6f5f4, 0xffffffff, 0xff000000).alpha(), 0xff);
    EXPECT_LT(popEdge(0xffffffff, 0xffffffff, 0xff1a1b1e).alpha(), 0xff);
}

TEST(Theme, FollowsAPaletteThatChangesInPlace) {
    auto palette = builtInPalette(ColorScheme::Light);
    EXPECT_EQ(Theme::of(palette).text, Theme::builtIn(ColorScheme::Light).text);
    palette.setColor(QPalette::WindowText, 0x204060);
    EXPECT_EQ(Theme::of(palette).text, QColor(0x204060));
    palette = builtInPalette(ColorScheme::Dark);
    EXPECT_EQ(Theme::of(palette).text, Theme::builtIn(ColorScheme::Dark).text);
}

// More than are remembered, each asked for again after all others.
TEST(Theme, ManyPalettesAreNotMixedUp) {
    std::vector<QPalette> palettes;
    for (int red = 0; red < 40; ++red) {
        palettes.push_back(builtInPalette(ColorScheme::Light));
        palettes.back().setColor(QPalette::WindowText, QColor(red, 0, 0x40));
    }
    for (int round = 0; round < 2; ++round) {
        for (int red = 0; red < 40; ++red) {
            const auto& palette = palettes.at(static_cast<std::size_t>(red));
            EXPECT_EQ(Theme::of(palette).text, QColor(red, 0, 0x40));
        }
    }
}

TEST(Theme, SchemeIsThatOfTextAndBackground) {
    EXPECT_EQ(colorScheme(builtInPalette(ColorScheme::Light)), ColorScheme::Light);
    EXPECT_EQ(colorScheme(builtInPalette(ColorScheme::Dark)), ColorScheme::Dark);
}

} // namespace
} // namespace quorvane
