// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/TypedDate.h>
#include <time/UserLocale.h>

#include <QRegularExpression>

namespace quorvane {

/// Reads distances from a day: a sign, a number, and d, w, m or y for days, weeks, months or years
/// of the locale's calendar; days without one.
class TypedDistance {
public:
    explicit TypedDistance(UserLocale locale);

    [[nodiscard]] TypedDate read(const QString& comparable, CivilDay from) const;

private:
    UserLocale m_locale;
    QRegularExpression m_expression;
};

} // namespace quorvane
