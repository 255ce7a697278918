// SPDX-License-Identifier: MIT
#pragma once

#include <time/TypedDate.h>

#include <QRegularExpression>

namespace quorvane {

/// Reads dates in ISO 8601, in its extended and basic forms, by month and day or by week, alone or
/// with a time of day, and that with an offset from UTC. They are Gregorian in every locale.
class TypedIsoDateReader {
public:
    TypedIsoDateReader();

    /// Of a text as comparableText() gives it.
    [[nodiscard]] TypedDate read(const QString& comparable) const;

private:
    QRegularExpression m_expression;
};

} // namespace quorvane
