// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

namespace quorvane {

/// How a stored value is read as a type that it may not have. See DefaultsStore for the rules.

/// A text, a number or a bool; arrays, objects and null count as absent.
[[nodiscard]] bool isScalar(const QJsonValue& value);

[[nodiscard]] bool toBool(const QJsonValue& value);
[[nodiscard]] std::optional<qint64> toInteger(const QJsonValue& value);
[[nodiscard]] std::optional<QString> toText(const QJsonValue& value);
[[nodiscard]] std::optional<QStringList> toTextList(const QJsonValue& value);

} // namespace quorvane
