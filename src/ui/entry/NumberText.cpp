// SPDX-License-Identifier: MIT
#include "NumberText.h"

#include <algorithm>

namespace quorvane {

namespace {

bool isAsciiDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

} // namespace

std::optional<qint64> parsedNumber(QStringView text) {
    const bool isSigned = text.startsWith(u'+') || text.startsWith(u'-');
    const auto digits = text.mid(isSigned ? 1 : 0);
    if (digits.isEmpty() || !std::ranges::all_of(digits, isAsciiDigit))
        return std::nullopt;
    bool fits = false;
    const auto number = text.toLongLong(&fits, 10);
    return fits ? std::optional(number) : std::nullopt;
}

} // namespace quorvane
