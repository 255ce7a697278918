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

QStringList CountryNames::of(const QStringList& codes) {
    QStringList names;
    for (const auto& code : codes) {
        const auto [known, isNew] = m_known.try_emplace(code);
        if (isNew)
            known->second = lookedUp(code);
        names << known->second;
    }
    names.removeDuplicates();
    return names;
}

QStringList CountryNames::lookedUp(const QString& code) const {
    const icu::Locale country("", code.toLatin1().constData());
    return {nameIn(m_locale.icuLocale(), country), nameIn(icu::Locale::getEnglish(), country)};
}

} // namespace quorvane
