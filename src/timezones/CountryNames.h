// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

#include <QString>
#include <QStringList>

namespace quorvane {

/// What countries are called, by their codes of ISO 3166, in a locale's language and in English;
/// a name that is the same in both once.
[[nodiscard]] QStringList countryNames(const QStringList& codes, const UserLocale& locale);

} // namespace quorvane
