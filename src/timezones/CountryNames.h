// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

#include <QString>
#include <QStringList>

#include <unordered_map>

namespace quorvane {

/// What countries are called in a locale's language and in English. Most have several zones: each
/// name is looked up once.
class CountryNames {
public:
    explicit CountryNames(UserLocale locale) : m_locale(std::move(locale)) {}

    /// By their codes of ISO 3166; a name that is the same in both languages once.
    [[nodiscard]] QStringList of(const QStringList& codes);

private:
    [[nodiscard]] QStringList lookedUp(const QString& code) const;

    UserLocale m_locale;
    std::unordered_map<QString, QStringList> m_known; ///< by code
};

} // namespace quorvane
