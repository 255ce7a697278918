// SPDX-License-Identifier: MIT
#include <language/LanguagesRead.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// "de_AT" of "de_AT.UTF-8@euro".
QString languageAndCountry(const QString& posixName) {
    return posixName.section(u'@', 0, 0).section(u'.', 0, 0);
}

QString messagesLocale(const Environment& environment) {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const auto value = environment(name).value_or(QString());
        if (!value.isEmpty())
            return languageAndCountry(value);
    }
    return {};
}

} // namespace

QStringList languagesRead(const Environment& environment) {
    const auto locale = messagesLocale(environment);
    if (locale.isEmpty() || locale == "C"_L1 || locale == "POSIX"_L1)
        return {};
    auto wishes = environment("LANGUAGE").value_or(QString()).split(u':', Qt::SkipEmptyParts);
    wishes.append(locale);
    QStringList languages;
    for (const auto& wish : wishes) {
        const auto whole = languageAndCountry(wish);
        languages << whole << whole.section(u'_', 0, 0);
    }
    languages.removeDuplicates();
    languages.removeAll(QString());
    return languages;
}

} // namespace quorvane
