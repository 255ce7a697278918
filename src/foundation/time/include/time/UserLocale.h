// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QString>
#include <unicode/locid.h>

namespace quorvane {

/// The locale that dates are written in. It is passed in wherever it matters; the process's own
/// default locales play no part.
class UserLocale {
public:
    /// By ICU's name, such as "sr_Latn_RS". A name that ICU has no data for gives en_US.
    [[nodiscard]] static UserLocale named(const QString& icuName);

    /// The user's locale for dates: the first of LC_ALL, LC_TIME and LANG that is not empty. C,
    /// POSIX, no variable at all, and what ICU does not know give en_US.
    [[nodiscard]] static UserLocale fromEnvironment(const Environment& environment);

    /// en_US_POSIX, whose texts never change: for formats that machines read. Not for weeks: its
    /// first day of the week is not the user's.
    [[nodiscard]] static UserLocale posix();

    [[nodiscard]] const icu::Locale& icuLocale() const { return m_locale; }

    friend bool operator==(const UserLocale&, const UserLocale&) = default;

private:
    explicit UserLocale(icu::Locale locale) : m_locale(std::move(locale)) {}

    icu::Locale m_locale;
};

} // namespace quorvane
