// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

#include <array>
#include <optional>

namespace quorvane {

enum class ColorScheme { Light, Dark };

enum class Contrast { Normal, High };

/// Every colour of the interface. Views ask for it when they paint, so that a change of the
/// palette shows at once.
struct Theme {
    QColor win;  ///< panel, preferences
    QColor base; ///< whatever takes a press or text
    QColor pop;  ///< popovers, menus, sheets

    QColor text;
    QColor text2; ///< symbols, captions, suggestions, placeholders; at least 4.5:1
    QColor off;   ///< what is refused

    QColor accent; ///< fills with onAccent on top
    QColor accentHover;
    QColor accentPress;
    QColor onAccent;
    QColor accentText; ///< the accent as ink, and as the tint of what is chosen

    QColor chosenEdge;    ///< of a chosen zone
    QColor suggestedEdge; ///< of a suggested one
    QColor popEdge;       ///< of a popover with a shadow

    QColor sep;     ///< frames
    QColor line;    ///< dividers inside a surface
    QColor outline; ///< of an empty checkbox
    QColor track;   ///< of a switch that is off
    QColor knob;

    QColor quiet; ///< fill of output and of search rows
    QColor hover; ///< laid over a control's own fill
    QColor press; ///< likewise

    QColor green;
    QColor danger;
    QColor dangerHover; ///< fills under `danger`
    QColor dangerPress;
    QColor yellow;
    QColor yellowEdge;

    QColor capEdge;
    QColor capShadow;
    QColor capHighlight;          ///< transparent on light grounds
    QColor scrim;                 ///< over what a sheet covers
    std::array<QColor, 6> shadow; ///< of a popover, from its edge outwards

    /// The colours that go with a palette. Of the house's own palettes they are the house's; of
    /// another one, whatever it gives is kept and the rest is derived from it with enough contrast.
    /// A palette of black on white, or of white on black, asks for high contrast: all text then has
    /// 7:1, and every edge is as strong as text.
    [[nodiscard]] static Theme of(const QPalette& palette);

    [[nodiscard]] static const Theme& house(ColorScheme scheme);
};

/// The house's own palette, for desktops that give none; with the user's accent, if there is one,
/// darkened or lightened until what stands on it can be read.
[[nodiscard]] QPalette housePalette(
    ColorScheme scheme,
    Contrast contrast = Contrast::Normal,
    const std::optional<QColor>& accent = std::nullopt);

/// Whether text is lighter than what it stands on.
[[nodiscard]] ColorScheme colorScheme(const QPalette& palette);

} // namespace quorvane
