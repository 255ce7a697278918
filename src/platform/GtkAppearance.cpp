// SPDX-License-Identifier: MIT
#include <platform/GtkAppearance.h>

#include <QRegularExpression>
#include <QStringList>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Scheme = DesktopAppearance::Scheme;

constexpr double largestFont = 100; ///< points; more is no size that anybody reads with

bool isDarkTheme(const QString& name) {
    // As a word of its own: "Arc-Darker" has light windows. ":" is a variant's mark.
    static const QRegularExpression separators(u"[-_ :]+"_s);
    const auto words = name.toLower().split(separators);
    return words.contains("dark"_L1) || words.constFirst().startsWith("black"_L1) ||
           words.constFirst().endsWith("inverse"_L1);
}

bool isHighContrastTheme(const QString& name) {
    return name.startsWith("HighContrast"_L1, Qt::CaseInsensitive) ||
           name.startsWith("ContrastHigh"_L1, Qt::CaseInsensitive);
}

/// Whether a word at the end of a font's name is about its style.
bool isStyleWord(const QString& word) {
    static const QStringList words{
        u"regular"_s,        u"normal"_s,    u"roman"_s,       u"book"_s,        u"medium"_s,
        u"thin"_s,           u"light"_s,     u"extra-light"_s, u"ultra-light"_s, u"semi-light"_s,
        u"demi-light"_s,     u"semi-bold"_s, u"demi-bold"_s,   u"bold"_s,        u"extra-bold"_s,
        u"ultra-bold"_s,     u"heavy"_s,     u"italic"_s,      u"oblique"_s,     u"condensed"_s,
        u"semi-condensed"_s, u"expanded"_s};
    return words.contains(word.toLower());
}

std::optional<Scheme> schemeOf(const GtkSettings& settings) {
    if (settings.prefersDarkTheme.value_or(false))
        return Scheme::Dark;
    if (!settings.themeName)
        return std::nullopt;
    return isDarkTheme(*settings.themeName) ? Scheme::Dark : Scheme::Light;
}

} // namespace

DesktopAppearance appearanceOf(const GtkSettings& settings) {
    return {
        .scheme = schemeOf(settings),
        .font = settings.fontName ? fontNamed(*settings.fontName) : std::nullopt,
        .wantsMoreContrast = settings.themeName && isHighContrastTheme(*settings.themeName),
        .wantsLessMotion = !settings.animates.value_or(true)};
}

std::optional<DesktopAppearance::Font> fontNamed(const QString& pangoName) {
    auto words = pangoName.simplified().split(u' ');
    bool isNumber = false;
    const double points = words.takeLast().toDouble(&isNumber);
    const bool isSize = isNumber && points > 0 && points <= largestFont;
    if (!isSize)
        return std::nullopt;
    while (words.size() > 1 && isStyleWord(words.constLast()))
        words.removeLast();
    // Several families are separated by commas.
    const auto family = words.join(u' ').section(u',', 0, 0).trimmed();
    if (family.isEmpty())
        return std::nullopt;
    return DesktopAppearance::Font{family, points};
}

} // namespace quorvane
