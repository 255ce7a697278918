// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

#include <QString>

#include <optional>

namespace quorvane {

/// What GTK's settings say about the look of programs, wherever they were read: XSETTINGS and
/// settings.ini name them alike.
struct GtkSettings {
    std::optional<QString> themeName{};
    std::optional<bool> prefersDarkTheme{};
    std::optional<QString> fontName{}; ///< "Noto Sans Bold 10"
    std::optional<bool> animates{};
};

/// A theme is dark by its name ("Adwaita-dark", "Mint-Y-Dark-Aqua", "HighContrastInverse"), for no
/// setting tells it. One of another name is light, and without a name nothing is known.
[[nodiscard]] DesktopAppearance appearanceOf(const GtkSettings& settings);

/// The family and size of a font as Pango writes it; none where there is no size in points. Weight
/// and slant are left out: the interface has its own.
[[nodiscard]] std::optional<DesktopAppearance::Font> fontNamed(const QString& pangoName);

} // namespace quorvane
