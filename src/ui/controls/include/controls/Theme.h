// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

#include <array>
#include <optional>

namespace quorvane {

enum class ColorScheme { Light, Dark };

enum class ContrastLevel { Normal, High };

/// Every colour of the interface. Views ask for it when they paint, so that a change of the
/// palette shows at once; for a palette that has not changed the answer is kept.
struct Theme {
    QColor windowBackground;  ///< panel, preferences
    QColor controlBackground; ///< whatever takes a press or text
    QColor popoverBackground; ///< popovers, menus, sheets

    QColor text;
    QColor secondaryText; ///< symbols, captions, suggestions, placeholders; at least 4.5:1
    QColor disabledText;  ///< what is refused

    QColor accent; ///< fills with onAccent on top
    QColor accentHover;
    QColor accentPressed;
    QColor onAccent;
    QColor accentText; ///< the accent as a foreground colour, and as the tint of what is chosen

    QColor selectedBorder;  ///< of a chosen zone
    QColor suggestedBorder; ///< of a suggested one
    QColor popoverBorder;   ///< of a popover with a shadow

    QColor border;         ///< frames
    QColor divider;        ///< dividers inside a surface
    QColor checkBoxBorder; ///< of an empty checkbox
    QColor switchTrack;    ///< of a switch that is off
    QColor switchKnob;

    QColor subtleFill;   ///< fill of output and of search rows
    QColor hoverOverlay; ///< laid over a control's own fill
    QColor pressOverlay; ///< likewise

    QColor success;
    QColor danger;
    QColor dangerHover; ///< fills under `danger`
    QColor dangerPressed;
    QColor star;
    QColor starBorder;

    QColor keyCapBorder;
    QColor keyCapShadow;
    QColor keyCapHighlight;       ///< transparent on light backgrounds
    QColor scrim;                 ///< over what a sheet covers
    std::array<QColor, 6> shadow; ///< of a popover, from its edge outwards

    /// Whether the palette asks for high contrast: what is faint elsewhere is then told by a frame.
    bool isHighContrast = false;

    /// The colours that go with a palette. Of the built-in palettes they are the built-in theme's;
    /// of another one, whatever it gives is kept and the rest is derived from it with enough
    /// contrast.
    /// A palette of black on white, or of white on black, asks for high contrast: all text then has
    /// 7:1, and every edge is as strong as text. For the thread of the interface alone.
    [[nodiscard]] static Theme of(const QPalette& palette);

    /// The theme for desktops that bring no colours of their own.
    [[nodiscard]] static const Theme& builtIn(ColorScheme scheme);
};

/// The built-in theme's palette, for desktops that give none; with the user's accent, if there is
/// one, darkened or lightened until what stands on it can be read.
[[nodiscard]] QPalette builtInPalette(
    ColorScheme scheme,
    ContrastLevel contrast = ContrastLevel::Normal,
    const std::optional<QColor>& accent = std::nullopt);

/// Whether text is lighter than what it stands on.
[[nodiscard]] ColorScheme colorScheme(const QPalette& palette);

} // namespace quorvane
