// SPDX-License-Identifier: MIT
#include <time/UserLocale.h>

#include <QStringList>
#include <unicode/resbund.h>

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct ScriptRow {
    QLatin1StringView modifier;
    QLatin1StringView script;
};

// The C library names scripts by modifiers after the territory, ICU by codes before it. All other
// modifiers (euro and spelling variants) say nothing that dates depend on.
constexpr std::array scriptTable{
    ScriptRow{"latin"_L1, "Latn"_L1},
    ScriptRow{"cyrillic"_L1, "Cyrl"_L1},
    ScriptRow{"devanagari"_L1, "Deva"_L1},
};

QString scriptOf(const QString& modifier) {
    const auto row = std::ranges::find(scriptTable, modifier, &ScriptRow::modifier);
    return row == scriptTable.end() ? QString() : QString(row->script);
}

/// "language[_territory][.codeset][@modifier]" as ICU's "language[_Script][_territory]".
QString icuNameOf(const QString& posixName) {
    auto name = posixName.section(u'@', 0, 0).section(u'.', 0, 0);
    const auto script = scriptOf(posixName.section(u'@', 1));
    if (script.isEmpty())
        return name;
    QStringList parts = name.split(u'_');
    parts.insert(1, script);
    return parts.join(u'_');
}

bool hasData(const icu::Locale& locale) {
    auto status = U_ZERO_ERROR;
    const icu::ResourceBundle bundle(nullptr, locale, status);
    // ICU warns when it found nothing nearer than its default locale or the root.
    return U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING;
}

} // namespace

UserLocale UserLocale::named(const QString& icuName) {
    const icu::Locale locale(icuName.toUtf8().constData());
    const bool isUsable = !locale.isBogus() && *locale.getLanguage() != '\0' && hasData(locale);
    return UserLocale(isUsable ? locale : icu::Locale::getUS());
}

UserLocale UserLocale::fromEnvironment(const Environment& environment) {
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
        const auto value = environment(name).value_or(QString());
        if (!value.isEmpty())
            return named(icuNameOf(value));
    }
    return named({});
}

UserLocale UserLocale::posix() {
    return UserLocale(icu::Locale("en", "US", "POSIX"));
}

} // namespace quorvane
