// SPDX-License-Identifier: MIT
#include <platform_xdg/KdeAppearance.h>

#include <QColor>
#include <QStringList>

#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Scheme = DesktopAppearance::Scheme;

const auto general = u"General"_s;

/// "49,54,59".
std::optional<QColor> colorIn(const std::optional<QString>& text) {
    const auto parts = text.value_or(QString()).split(u',');
    if (parts.size() < 3)
        return std::nullopt;
    std::array<int, 3> channels{};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        bool isNumber = false;
        channels.at(i) = parts[static_cast<qsizetype>(i)].toInt(&isNumber);
        if (!isNumber || channels.at(i) < 0 || channels.at(i) > 255)
            return std::nullopt;
    }
    return QColor(channels[0], channels[1], channels[2]);
}

std::optional<Scheme> schemeIn(const IniFile& file) {
    constexpr int middleGray = 128;
    if (const auto window = colorIn(file.value(u"Colors:Window"_s, u"BackgroundNormal"_s)))
        return qGray(window->rgb()) < middleGray ? Scheme::Dark : Scheme::Light;
    const auto name = file.value(general, u"ColorScheme"_s);
    if (!name)
        return std::nullopt;
    return name->contains("dark"_L1, Qt::CaseInsensitive) ? Scheme::Dark : Scheme::Light;
}

std::optional<DesktopAppearance::Accent> accentIn(const IniFile& file) {
    const auto color = colorIn(file.value(general, u"AccentColor"_s));
    if (!color)
        return std::nullopt;
    return DesktopAppearance::Accent{color->redF(), color->greenF(), color->blueF()};
}

/// "Noto Sans,10,-1,5,50,0,0,0,0,0".
std::optional<DesktopAppearance::Font> fontIn(const IniFile& file) {
    const auto parts = file.value(general, u"font"_s).value_or(QString()).split(u',');
    const double points = parts.value(1).toDouble();
    if (parts[0].isEmpty() || points <= 0)
        return std::nullopt;
    return DesktopAppearance::Font{parts[0], points};
}

bool standsStill(const IniFile& file) {
    const auto factor = file.value(u"KDE"_s, u"AnimationDurationFactor"_s);
    bool isNumber = false;
    return factor && factor->toDouble(&isNumber) == 0 && isNumber;
}

} // namespace

DesktopAppearance appearanceOfKde(const IniFile& kdeglobals) {
    return {
        .scheme = schemeIn(kdeglobals),
        .accent = accentIn(kdeglobals),
        .font = fontIn(kdeglobals),
        .wantsLessMotion = standsStill(kdeglobals)};
}

} // namespace quorvane
