// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace quorvane {

/// GVariant's text format, as far as lists of shortcuts need it: strings, and arrays of them.
namespace gvarianttext {

/// The string that the text stands for; none for anything else.
[[nodiscard]] std::optional<QString> string(QStringView text);

/// The strings of an array; none for anything else, and for what is not whole.
[[nodiscard]] std::optional<QStringList> strings(QStringView text);

/// The text that stands for the string.
[[nodiscard]] QString fromString(const QString& string);

/// The text that stands for an array of them.
[[nodiscard]] QString fromStrings(const QStringList& strings);

} // namespace gvarianttext

} // namespace quorvane
