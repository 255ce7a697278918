// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <unicode/timezone.h>

#include <memory>

namespace quorvane {

/// By what a search finds a zone besides its aliases and its identifier.
struct ZoneWords {
    std::unique_ptr<icu::TimeZone> zone; ///< for the abbreviation, which depends on the moment
    QString genericName;                 ///< "Pacific Time"; empty for none
    QStringList countries;               ///< "Germany", in the user's language and in English
    QString lowerGenericName;            ///< the same in lower case
    QString furtherNames;                ///< all names, folded and separated
};

} // namespace quorvane
