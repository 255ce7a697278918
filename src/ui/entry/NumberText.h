// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace quorvane {

/// The whole text as a decimal number: at most one sign ("+" or "-"), then ASCII digits and nothing
/// else. None for any other text, and for a number that does not fit 64 bits.
[[nodiscard]] std::optional<qint64> parsedNumber(QStringView text);

} // namespace quorvane
