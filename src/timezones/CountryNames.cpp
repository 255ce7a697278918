// SPDX-License-Identifier: MIT
#include "CountryNames.h"

#include <unicode/unistr.h>

namespace quorvane {

namespace {

QString nameIn(const icu::Locale& language, const icu::Locale& country) {
    icu::UnicodeString name;
    country.getDisplayCountry(language, name);
    return QString::fromUtf16(name.getBuffer(), name.length());
}

} // namespace

QStringList countryNames(const QStringList& codes, const UserLocale& locale) {
    QStringList names;
    for (const auto& code : codes) {
        const icu::Locale country("", code.toLatin1().constData());
        names << nameIn(locale.icuLocale(), country) << nameIn(icu::Locale::getEnglish(), country);
    }
    names.removeDuplicates();
    return names;
}

} // namespace quorvane
