// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <unicode/unistr.h>

namespace quorvane {

/// Both hold UTF-16, unchecked: lone surrogates pass through.
[[nodiscard]] icu::UnicodeString toIcu(QStringView text);
[[nodiscard]] QString fromIcu(const icu::UnicodeString& text);

} // namespace quorvane
