// SPDX-License-Identifier: MIT
#pragma once

#include "MotionStyle.h"

#include <platform/Appearance.h>

#include <QPointer>

namespace quorvane {

/// Makes the application look as the desktop wants it, now and at every change. Where the desktop
/// gives its programs a palette, colours and contrast are that palette's affair, and Qt's to
/// follow; elsewhere the house's own palette takes on scheme, accent and contrast. Lives as long as
/// the application shows anything.
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
    void apply();

    Appearance& m_appearance;
    PaletteFrom m_source;
    QPointer<MotionStyle> m_style; ///< the application's, which a desktop may exchange
};

} // namespace quorvane
