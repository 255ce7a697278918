// SPDX-License-Identifier: MIT
#include <controls/Contrast.h>
#include <controls/Theme.h>

#include <algorithm>

namespace quorvane {

namespace {

constexpr double readable = 4.5;     ///< WCAG 2.1, 1.4.3, level AA
constexpr double wellReadable = 7.0; ///< WCAG 2.1, 1.4.6, level AAA
constexpr double chosenTint = 0.15;
constexpr double chosenEdgeOpacity = 0.25;
constexpr double suggestedEdgeOpacity = 0.3;
/// Between text and ground; black on white has 21, and nobody who did not mean it comes near.
constexpr double highContrast = 20.0;

QColor ink(double opacity) {
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
        .win = 0xf6f6f8,
        .base = 0xffffff,
        .pop = 0xffffff,
        .text = 0x1a1b1e,
        .text2 = 0x5c6068,
        .off = 0xa4a7ae,
        .accent = 0x3457d5,
        .accentHover = 0x2c4dc4,
        .accentPress = 0x2542ac,
        .onAccent = 0xffffff,
        .accentText = 0x2f50c8,
        .chosenEdge = withOpacity(0x2f50c8, chosenEdgeOpacity),
        .suggestedEdge = withOpacity(0x5c6068, suggestedEdgeOpacity),
        .popEdge = ink(0.13),
        .sep = ink(0.13),
        .line = ink(0.09),
        .outline = 0x85888f,
        .track = 0x85888f,
        .knob = 0xffffff,
        .quiet = ink(0.05),
        .hover = ink(0.05),
        .press = ink(0.10),
        .green = 0x1a7a37,
        .danger = 0xc4302b,
        .dangerHover = withOpacity(0xc4302b, 0.10),
        .dangerPress = withOpacity(0xc4302b, 0.18),
        .yellow = 0xf4b90b,
        .yellowEdge = 0xb07d00,
        .capEdge = black(0.18),
        .capShadow = black(0.12),
        .capHighlight = Qt::transparent,
        .scrim = ink(0.24),
        .shadow = {ink(0.028), ink(0.028), ink(0.022), ink(0.022), ink(0.016), ink(0.016)}};
}

Theme darkTheme() {
    return {
        .win = 0x1d1e21,
        .base = 0x2a2b2f,
        .pop = 0x27282c,
        .text = 0xf0f1f3,
        .text2 = 0xaeb2bb,
        .off = 0x62656d,
        .accent = 0x4666ea,
        .accentHover = 0x3e5de0,
        .accentPress = 0x3652ca,
        .onAccent = 0xffffff,
        .accentText = 0xa6b7ff,
        .chosenEdge = withOpacity(0xa6b7ff, chosenEdgeOpacity),
        .suggestedEdge = withOpacity(0xaeb2bb, suggestedEdgeOpacity),
        .popEdge = white(0.12),
        .sep = white(0.12),
        .line = white(0.08),
        .outline = 0x7c8089,
        .track = 0x6a6e77,
        .knob = 0xffffff,
        .quiet = white(0.065),
        .hover = white(0.06),
        .press = white(0.11),
        .green = 0x63d387,
        .danger = 0xff8a80,
        .dangerHover = withOpacity(0xff8a80, 0.14),
        .dangerPress = withOpacity(0xff8a80, 0.22),
        .yellow = 0xf5c542,
        .yellowEdge = 0xf5c542,
        .capEdge = black(0.18),
        .capShadow = black(0.12),
        .capHighlight = white(0.10),
        .scrim = black(0.5),
        .shadow = {black(0.10), black(0.10), black(0.08), black(0.08), black(0.06), black(0.06)}};
}

QColor active(const QPalette& palette, QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
}

QColor readableOn(QColor color, const std::array<QColor, 3>& grounds, double ratio = readable) {
    for (const auto& ground : grounds)
        color = pushedToContrast(color, ground, ratio);
    return color;
}

/// Grounds and text as the desktop has them.
void adoptGrounds(Theme& theme, const QPalette& palette) {
    theme.win = active(palette, QPalette::Window);
    theme.base = active(palette, QPalette::Base);
    theme.pop = theme.base;
    theme.text = active(palette, QPalette::WindowText);
    const auto faded = blended(withOpacity(theme.text, 0.68), theme.win);
    theme.text2 = readableOn(faded, {theme.win, theme.base, theme.pop});
    theme.suggestedEdge = withOpacity(theme.text2, suggestedEdgeOpacity);
    theme.off = blended(withOpacity(theme.text, 0.4), theme.win);
}

/// `color` with enough contrast on `ground` under a tint of itself.
QColor inkOnItsOwnTint(QColor color, const QColor& ground, double ratio = readable) {
    // The tint darkens or lightens with its ink: that takes some rounds to come to rest.
    for (QColor before; before != color;) {
        before = color;
        const auto tinted = blended(withOpacity(color, chosenTint), ground);
        color = pushedToContrast(color, tinted, ratio);
    }
    return color;
}

/// The accent of the desktop, made to carry text: white where a darker tone of it still is that
/// colour, dark ink for yellow, lime and their like, which have no dark tone.
void adoptAccent(Theme& theme, const QColor& accent) {
    const bool isBright = contrastRatio(Qt::white, accent) < 2;
    theme.onAccent = isBright ? QColor(0x14161c) : QColor(Qt::white);
    theme.accent = isBright ? accent : pushedToContrast(accent, Qt::white, readable);
    theme.accentHover = theme.accent.darker(108);
    theme.accentPress = theme.accent.darker(122);
    theme.accentText = inkOnItsOwnTint(accent, theme.base);
    theme.chosenEdge = withOpacity(theme.accentText, chosenEdgeOpacity);
}

bool hasHighContrast(const QPalette& palette) {
    const auto text = active(palette, QPalette::WindowText);
    return contrastRatio(text, active(palette, QPalette::Window)) >= highContrast &&
           contrastRatio(text, active(palette, QPalette::Base)) >= highContrast;
}

/// Inks that are read well on all grounds, in every state of a control.
void strengthenInks(Theme& theme, const QColor& accent) {
    const std::array grounds{
        theme.win, blended(theme.press, theme.win), blended(theme.press, theme.base)};
    theme.text2 = readableOn(theme.text2, grounds, wellReadable);
    theme.off = readableOn(theme.off, grounds, readable);
    theme.green = readableOn(theme.green, grounds, wellReadable);
    theme.yellowEdge = readableOn(theme.yellowEdge, grounds, wellReadable);
    theme.danger = inkOnItsOwnTint(theme.danger, theme.base, wellReadable);
    theme.dangerHover = withOpacity(theme.danger, chosenTint / 2);
    theme.dangerPress = withOpacity(theme.danger, chosenTint);
    theme.accentText = inkOnItsOwnTint(accent, theme.base, wellReadable);
    // What stands on a fill is the ground that shows through it, in light and in dark.
    theme.onAccent = theme.base;
    theme.accent = pushedToContrast(accent, theme.onAccent, wellReadable);
    theme.accentHover = blended(withOpacity(theme.text, 0.2), theme.accent);
    theme.accentPress = blended(withOpacity(theme.text, 0.4), theme.accent);
    theme.track = theme.text2;
    theme.knob = theme.onAccent;
}

/// Every edge as strong as text.
void strengthenEdges(Theme& theme) {
    for (auto edge : {&Theme::sep, &Theme::line, &Theme::outline, &Theme::capEdge, &Theme::popEdge})
        theme.*edge = theme.text;
    theme.chosenEdge = theme.accentText;
    theme.suggestedEdge = theme.text2;
    theme.capShadow = Qt::transparent;
    theme.capHighlight = Qt::transparent;
}

Theme highContrastTheme(const QPalette& palette) {
    Theme theme = Theme::house(colorScheme(palette));
    theme.win = active(palette, QPalette::Window);
    theme.base = active(palette, QPalette::Base);
    theme.pop = theme.base;
    theme.text = active(palette, QPalette::WindowText);
    theme.hover = withOpacity(theme.text, 0.1);
    theme.press = withOpacity(theme.text, 0.2);
    strengthenInks(theme, active(palette, QPalette::Highlight));
    strengthenEdges(theme);
    return theme;
}

/// What decides a theme, and nothing else.
QPalette seedPalette(ColorScheme scheme, Contrast contrast, const std::optional<QColor>& accent) {
    const auto& house = Theme::house(scheme);
    const bool isHigh = contrast == Contrast::High;
    const bool isDark = scheme == ColorScheme::Dark;
    const QColor strongest = isDark ? Qt::white : Qt::black;
    const QColor faintest = isDark ? Qt::black : Qt::white;
    QPalette palette;
    palette.setColor(QPalette::Window, isHigh ? faintest : house.win);
    palette.setColor(QPalette::Base, isHigh ? faintest : house.base);
    palette.setColor(QPalette::WindowText, isHigh ? strongest : house.text);
    palette.setColor(QPalette::Highlight, accent.value_or(house.accent));
    return palette;
}

} // namespace

const Theme& Theme::house(ColorScheme scheme) {
    static const Theme light = lightTheme();
    static const Theme dark = darkTheme();
    return scheme == ColorScheme::Dark ? dark : light;
}

Theme Theme::of(const QPalette& palette) {
    if (hasHighContrast(palette))
        return highContrastTheme(palette);
    Theme theme = house(colorScheme(palette));
    const bool sameGrounds = active(palette, QPalette::Window) == theme.win &&
                             active(palette, QPalette::Base) == theme.base &&
                             active(palette, QPalette::WindowText) == theme.text;
    const auto accent = active(palette, QPalette::Highlight);
    const bool sameAccent = accent == theme.accent;
    if (!sameGrounds)
        adoptGrounds(theme, palette);
    if (!sameAccent || !sameGrounds)
        adoptAccent(theme, accent);
    return theme;
}

QPalette housePalette(ColorScheme scheme, Contrast contrast, const std::optional<QColor>& accent) {
    const auto theme = Theme::of(seedPalette(scheme, contrast, accent));
    QPalette palette(theme.base, theme.win);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, theme.text);
    palette.setColor(QPalette::Base, theme.base);
    palette.setColor(QPalette::AlternateBase, theme.win);
    palette.setColor(QPalette::Button, theme.base);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.onAccent);
    palette.setColor(QPalette::PlaceholderText, theme.text2);
    palette.setColor(QPalette::Link, theme.accentText);
    palette.setColor(QPalette::ToolTipBase, theme.pop);
    palette.setColor(QPalette::ToolTipText, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.off);
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
