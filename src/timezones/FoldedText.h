// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// The text in lower case and without accents, for searching: "São Tomé" is "sao tome". A minus
/// sign is a hyphen.
[[nodiscard]] QString foldedText(const QString& text);

} // namespace quorvane
