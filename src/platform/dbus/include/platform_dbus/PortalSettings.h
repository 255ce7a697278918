// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

#include <QString>
#include <QVariant>

namespace quorvane {

/// What a portal has told about the appearance, setting by setting.
class PortalSettings {
public:
    /// The settings come from several places, not all of which every portal has.
    static constexpr QStringView appearanceNamespace = u"org.freedesktop.appearance";
    static constexpr QStringView interfaceNamespace = u"org.gnome.desktop.interface";

    enum class Outcome {
        Adopted,
        Foreign,   ///< a setting that has no bearing on the appearance
        WrongType, ///< nothing has changed
    };

    /// Notes the value of one setting as it came from the bus, in however many variants it is
    /// wrapped. Values without a meaning (org.freedesktop.portal.Settings) are "no preference".
    [[nodiscard]] Outcome note(QStringView nameSpace, QStringView key, const QVariant& value);

    [[nodiscard]] DesktopAppearance appearance() const;

private:
    DesktopAppearance m_told;
    bool m_animationsDisabled = false; ///< the older way to say that motion is unwelcome
};

} // namespace quorvane
