// SPDX-License-Identifier: MIT
#include "ThemeCache.h"

#include <controls/ColorContrast.h>
#include <controls/Theme.h>

#include <algorithm>

namespace quorvane {

namespace {

constexpr double readable = 4.5;     ///< WCAG 2.1, 1.4.3, level AA
constexpr double wellReadable = 7.0; ///< WCAG 2.1, 1.4.6, level AAA
constexpr double chosenTint = 0.15;
constexpr double chosenEdgeOpacity = 0.25;
constexpr double suggestedEdgeOpacity = 0.3;
/// Between text and background; black on white has 21, and no palette comes near it by chance.
constexpr double highContrast = 20.0;

QColor darkTint(double opacity) {
    return withOpacity(QColor(0x14, 0x16, 0x1c), opacity);
}

QColor white(double opacity) {
    return withOpacity(Qt::white, opacity);
}

QColor black(double opacity) {
    return withOpacity(Qt::black, opacity);
}

Theme lightTheme() {
    return {
        .windowBackground = 0xf6f6f8,
        .controlBackground = 0xffffff,
        .popoverBackground = 0xffffff,
        .text = 0x1a1b1e,
        .secondaryText = 0x5c6068,
        .disabledText = 0xa4a7ae,
        .accent = 0x3457d5,
        .accentHover = 0x2c4dc4,
        .accentPressed = 0x2542ac,
        .onAccent = 0xffffff,
        .accentText = 0x2f50c8,
        .selectedBorder = withOpacity(0x2f50c8, chosenEdgeOpacity),
        .suggestedBorder = withOpacity(0x5c6068, suggestedEdgeOpacity),
        .popoverBorder = darkTint(0.13),
        .border = darkTint(0.13),
        .divider = darkTint(0.09),
        .checkBoxBorder = 0x85888f,
        .switchTrack = 0x85888f,
        .switchKnob = 0xffffff,
        .subtleFill = darkTint(0.05),
        .hoverOverlay = darkTint(0.05),
        .pressOverlay = darkTint(0.10),
        .success = 0x1a7a37,
        .danger = 0xc4302b,
        .dangerHover = withOpacity(0xc4302b, 0.10),
        .dangerPressed = withOpacity(0xc4302b, 0.18),
        .star = 0xf4b90b,
        .starBorder = 0xb07d00,
        .keyCapBorder = black(0.18),
        .keyCapShadow = black(0.12),
        .keyCapHighlight = Qt::transparent,
        .scrim = darkTint(0.24),
        .shadow = {
            darkTint(0.028),
            darkTint(0.028),
            darkTint(0.022),
            darkTint(0.022),
            darkTint(0.016),
            darkTint(0.016)}};
}

Theme darkTheme() {
    return {
        .windowBackground = 0x1d1e21,
        .controlBackground = 0x2a2b2f,
        .popoverBackground = 0x27282c,
        .text = 0xf0f1f3,
        .secondaryText = 0xaeb2bb,
        .disabledText = 0x62656d,
        .accent = 0x4666ea,
        .accentHover = 0x3e5de0,
        .accentPressed = 0x3652ca,
        .onAccent = 0xffffff,
        .accentText = 0xa6b7ff,
        .selectedBorder = withOpacity(0xa6b7ff, chosenEdgeOpacity),
        .suggestedBorder = withOpacity(0xaeb2bb, suggestedEdgeOpacity),
        .popoverBorder = white(0.12),
        .border = white(0.12),
        .divider = white(0.08),
        .checkBoxBorder = 0x7c8089,
        .switchTrack = 0x6a6e77,
        .switchKnob = 0xffffff,
        .subtleFill = white(0.065),
        .hoverOverlay = white(0.06),
        .pressOverlay = white(0.11),
        .success = 0x63d387,
        .danger = 0xff8a80,
        .dangerHover = withOpacity(0xff8a80, 0.14),
        .dangerPressed = withOpacity(0xff8a80, 0.22),
        .star = 0xf5c542,
        .starBorder = 0xf5c542,
        .keyCapBorder = black(0.18),
        .keyCapShadow = black(0.12),
        .keyCapHighlight = white(0.10),
        .scrim = black(0.5),
        .shadow = {black(0.10), black(0.10), black(0.08), black(0.08), black(0.06), black(0.06)}};
}

QColor active(const QPalette& palette, QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
}

QColor readableOn(QColor color, const std::array<QColor, 3>& backgrounds, double ratio = readable) {
    for (const auto& background : backgrounds)
        color = pushedToContrast(color, background, ratio);
    return color;
}

/// Backgrounds and text as the desktop has them.
void adoptBackgrounds(Theme& theme, const QPalette& palette) {
    theme.windowBackground = active(palette, QPalette::Window);
    theme.controlBackground = active(palette, QPalette::Base);
    theme.popoverBackground = theme.controlBackground;
    theme.text = active(palette, QPalette::WindowText);
    const auto faded = blended(withOpacity(theme.text, 0.68), theme.windowBackground);
    theme.secondaryText = readableOn(
        faded, {theme.windowBackground, theme.controlBackground, theme.popoverBackground});
    theme.suggestedBorder = withOpacity(theme.secondaryText, suggestedEdgeOpacity);
    theme.disabledText = blended(withOpacity(theme.text, 0.4), theme.windowBackground);
}

/// `color` with enough contrast on `background` under a tint of itself.
QColor readableOnItsOwnTint(QColor color, const QColor& background, double ratio = readable) {
    // The tint darkens or lightens with the colour: that takes some rounds to settle.
    for (QColor before; before != color;) {
        before = color;
        const auto tinted = blended(withOpacity(color, chosenTint), background);
        color = pushedToContrast(color, tinted, ratio);
    }
    return color;
}

/// The accent of the desktop, made to carry text: white where a darker tone of it still is that
/// colour, dark text for yellow, lime and their like, which have no dark tone.
void adoptAccent(Theme& theme, const QColor& accent) {
    const bool isBright = contrastRatio(Qt::white, accent) < 2;
    theme.onAccent = isBright ? QColor(0x14161c) : QColor(Qt::white);
    theme.accent = isBright ? accent : pushedToContrast(accent, Qt::white, readable);
    theme.accentHover = theme.accent.darker(108);
    theme.accentPressed = theme.accent.darker(122);
    theme.accentText = readableOnItsOwnTint(accent, theme.controlBackground);
    theme.selectedBorder = withOpacity(theme.accentText, chosenEdgeOpacity);
}

bool hasHighContrast(const QPalette& palette) {
    const auto text = active(palette, QPalette::WindowText);
    return contrastRatio(text, active(palette, QPalette::Window)) >= highContrast &&
           contrastRatio(text, active(palette, QPalette::Base)) >= highContrast;
}

/// Foreground colours that are read well on all backgrounds, in every state of a control.
void strengthenForegrounds(Theme& theme, const QColor& accent) {
    const std::array backgrounds{
        theme.windowBackground,
        blended(theme.pressOverlay, theme.windowBackground),
        blended(theme.pressOverlay, theme.controlBackground)};
    theme.secondaryText = readableOn(theme.secondaryText, backgrounds, wellReadable);
    theme.disabledText = readableOn(theme.disabledText, backgrounds, readable);
    theme.success = readableOn(theme.success, backgrounds, wellReadable);
    theme.starBorder = readableOn(theme.starBorder, backgrounds, wellReadable);
    theme.danger = readableOnItsOwnTint(theme.danger, theme.controlBackground, wellReadable);
    theme.dangerHover = withOpacity(theme.danger, chosenTint / 2);
    theme.dangerPressed = withOpacity(theme.danger, chosenTint);
    theme.accentText = readableOnItsOwnTint(accent, theme.controlBackground, wellReadable);
    // What stands on a fill has the background's colour, in light and in dark.
    theme.onAccent = theme.controlBackground;
    theme.accent = pushedToContrast(accent, theme.onAccent, wellReadable);
    theme.accentHover = blended(withOpacity(theme.text, 0.2), theme.accent);
    theme.accentPressed = blended(withOpacity(theme.text, 0.4), theme.accent);
    theme.switchTrack = theme.secondaryText;
    theme.switchKnob = theme.onAccent;
}

/// Every edge as strong as text.
void strengthenEdges(Theme& theme) {
    for (auto edge :
         {&Theme::border,
          &Theme::divider,
          &Theme::checkBoxBorder,
          &Theme::keyCapBorder,
          &Theme::popoverBorder})
        theme.*edge = theme.text;
    theme.selectedBorder = theme.accentText;
    theme.suggestedBorder = theme.secondaryText;
    theme.keyCapShadow = Qt::transparent;
    theme.keyCapHighlight = Qt::transparent;
}

Theme highContrastTheme(const QPalette& palette) {
    Theme theme = Theme::builtIn(colorScheme(palette));
    theme.windowBackground = active(palette, QPalette::Window);
    theme.controlBackground = active(palette, QPalette::Base);
    theme.popoverBackground = theme.controlBackground;
    theme.text = active(palette, QPalette::WindowText);
    theme.hoverOverlay = withOpacity(theme.text, 0.1);
    theme.pressOverlay = withOpacity(theme.text, 0.2);
    strengthenForegrounds(theme, active(palette, QPalette::Highlight));
    strengthenEdges(theme);
    theme.isHighContrast = true;
    return theme;
}

/// What decides a theme, and nothing else.
QPalette
seedPalette(ColorScheme scheme, ContrastLevel contrast, const std::optional<QColor>& accent) {
    const auto& builtIn = Theme::builtIn(scheme);
    const bool isHigh = contrast == ContrastLevel::High;
    const bool isDark = scheme == ColorScheme::Dark;
    const QColor strongest = isDark ? Qt::white : Qt::black;
    const QColor faintest = isDark ? Qt::black : Qt::white;
    QPalette palette;
    palette.setColor(QPalette::Window, isHigh ? faintest : builtIn.windowBackground);
    palette.setColor(QPalette::Base, isHigh ? faintest : builtIn.controlBackground);
    palette.setColor(QPalette::WindowText, isHigh ? strongest : builtIn.text);
    palette.setColor(QPalette::Highlight, accent.value_or(builtIn.accent));
    return palette;
}

Theme derivedTheme(const QPalette& palette) {
    if (hasHighContrast(palette))
        return highContrastTheme(palette);
    Theme theme = Theme::builtIn(colorScheme(palette));
    const bool sameBackgrounds = active(palette, QPalette::Window) == theme.windowBackground &&
                                 active(palette, QPalette::Base) == theme.controlBackground &&
                                 active(palette, QPalette::WindowText) == theme.text;
    const auto accent = active(palette, QPalette::Highlight);
    const bool sameAccent = accent == theme.accent;
    if (!sameBackgrounds)
        adoptBackgrounds(theme, palette);
    if (!sameAccent || !sameBackgrounds)
        adoptAccent(theme, accent);
    return theme;
}

} // namespace

const Theme& Theme::builtIn(ColorScheme scheme) {
    static const Theme light = lightTheme();
    static const Theme dark = darkTheme();
    return scheme == ColorScheme::Dark ? dark : light;
}

Theme Theme::of(const QPalette& palette) {
    // Asked at each paint and each measurement, by one thread.
    static ThemeCache cache(derivedTheme);
    return cache.theme(palette);
}

QPalette
builtInPalette(ColorScheme scheme, ContrastLevel contrast, const std::optional<QColor>& accent) {
    const auto theme = Theme::of(seedPalette(scheme, contrast, accent));
    QPalette palette(theme.controlBackground, theme.windowBackground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, theme.text);
    palette.setColor(QPalette::Base, theme.controlBackground);
    palette.setColor(QPalette::AlternateBase, theme.windowBackground);
    palette.setColor(QPalette::Button, theme.controlBackground);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.onAccent);
    palette.setColor(QPalette::PlaceholderText, theme.secondaryText);
    palette.setColor(QPalette::Link, theme.accentText);
    palette.setColor(QPalette::ToolTipBase, theme.popoverBackground);
    palette.setColor(QPalette::ToolTipText, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.disabledText);
    return palette;
}

ColorScheme colorScheme(const QPalette& palette) {
    const auto lightness = [&](QPalette::ColorRole role) {
        return active(palette, role).lightness();
    };
    return lightness(QPalette::WindowText) > lightness(QPalette::Window) ? ColorScheme::Dark
                                                                         : ColorScheme::Light;
}

} // namespace quorvane
