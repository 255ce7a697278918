// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopoverEffects.h>
#include <platform/Appearance.h>

#include <QFont>
#include <QPointer>

#include <functional>
#include <utility>

namespace quorvane {

/// Makes the application look as the desktop wants it, now and at every change. Where the desktop
/// gives its programs a palette, colours and contrast are those of that palette, which Qt follows;
/// elsewhere the built-in palette takes on scheme, accent and contrast. The same goes for the font.
/// Must live as long as the application shows anything.
class AppearanceFollower {
public:
    enum class PaletteFrom { BuiltIn, Desktop };
    enum class FontFrom { BuiltIn, Desktop };

    /// Where the palette that the application has now comes from.
    [[nodiscard]] static PaletteFrom paletteSource();

    /// Where its font comes from.
    [[nodiscard]] static FontFrom fontSource();

    /// `effects` are those of tooltips.
    AppearanceFollower(
        Appearance& appearance, PaletteFrom palette, FontFrom font, PopoverEffects effects = {});
    ~AppearanceFollower();

    /// Called after each change, once all of it shows; replaces an earlier handler.
    void onApplied(std::function<void()> handler) { m_applied = std::move(handler); }

    AppearanceFollower(const AppearanceFollower&) = delete;
    AppearanceFollower& operator=(const AppearanceFollower&) = delete;

private:
    class MotionStyle;

    void apply();

    Appearance& m_appearance;
    PaletteFrom m_paletteFrom;
    FontFrom m_fontFrom;
    QFont m_ownFont; ///< for when the desktop names none any more
    std::function<void()> m_applied;
    QPointer<MotionStyle> m_style; ///< null once a desktop has replaced it
};

} // namespace quorvane
