// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

#include <QPointer>

namespace quorvane {

/// Makes the application look as the desktop wants it, now and at every change. Where the desktop
/// gives its programs a palette, colours and contrast are those of that palette, which Qt follows;
/// elsewhere the built-in palette takes on scheme, accent and contrast. Must live as long as the
/// application shows anything.
class AppearanceFollower {
public:
    enum class PaletteFrom { BuiltIn, Desktop };

    /// Where the palette that the application has now comes from.
    [[nodiscard]] static PaletteFrom paletteSource();

    AppearanceFollower(Appearance& appearance, PaletteFrom source);
    ~AppearanceFollower();

    AppearanceFollower(const AppearanceFollower&) = delete;
    AppearanceFollower& operator=(const AppearanceFollower&) = delete;

private:
    class MotionStyle;

    void apply();

    Appearance& m_appearance;
    PaletteFrom m_source;
    QPointer<MotionStyle> m_style; ///< null once a desktop has replaced it
};

} // namespace quorvane
