// SPDX-License-Identifier: MIT
#include <platform_dbus/PortalSettings.h>

#include <QDBusArgument>
#include <QDBusVariant>

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Accent = DesktopAppearance::Accent;
using Scheme = DesktopAppearance::Scheme;

/// The method Read wraps its values twice, and some portals do so elsewhere too.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

std::optional<uint> asNumber(const QVariant& value) {
    return value.metaType().id() == QMetaType::UInt ? std::optional(value.toUInt()) : std::nullopt;
}

std::optional<bool> asBool(const QVariant& value) {
    return value.metaType().id() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<Accent> asTriple(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = qvariant_cast<QDBusArgument>(value);
    if (argument.currentSignature() != "(ddd)"_L1)
        return std::nullopt;
    Accent accent{};
    argument.beginStructure();
    argument >> accent.red >> accent.green >> accent.blue;
    argument.endStructure();
    return accent;
}

std::optional<Scheme> schemeOf(uint number) {
    switch (number) {
    case 1:
        return Scheme::Dark;
    case 2:
        return Scheme::Light;
    default:
        return std::nullopt;
    }
}

bool isColor(const Accent& accent) {
    return std::ranges::all_of(std::array{accent.red, accent.green, accent.blue}, [](double part) {
        return part >= 0 && part <= 1;
    });
}

} // namespace

PortalSettings::Outcome
PortalSettings::note(QStringView nameSpace, QStringView key, const QVariant& wrapped) {
    const auto value = unwrapped(wrapped);
    const auto adopt = [](const auto& told, auto use) {
        if (!told)
            return Outcome::WrongType;
        use(*told);
        return Outcome::Adopted;
    };
    if (nameSpace == interfaceNamespace && key == "enable-animations"_L1)
        return adopt(asBool(value), [this](bool enabled) { m_animationsDisabled = !enabled; });
    if (nameSpace != appearanceNamespace)
        return Outcome::Foreign;
    if (key == "color-scheme"_L1)
        return adopt(asNumber(value), [this](uint told) { m_told.scheme = schemeOf(told); });
    if (key == "accent-color"_L1)
        return adopt(asTriple(value), [this](const Accent& told) {
            m_told.accent = isColor(told) ? std::optional(told) : std::nullopt;
        });
    if (key == "contrast"_L1)
        return adopt(asNumber(value), [this](uint told) { m_told.wantsMoreContrast = told == 1; });
    if (key == "reduced-motion"_L1)
        return adopt(asNumber(value), [this](uint told) { m_told.wantsLessMotion = told == 1; });
    return Outcome::Foreign;
}

DesktopAppearance PortalSettings::appearance() const {
    auto appearance = m_told;
    appearance.wantsLessMotion = m_told.wantsLessMotion || m_animationsDisabled;
    return appearance;
}

} // namespace quorvane
