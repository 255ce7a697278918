// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace quorvane {

/// The one of `cases` whose raw value is exactly `text`.
template <typename Case, std::size_t count>
[[nodiscard]] std::optional<Case> caseOf(const std::array<Case, count>& cases, QStringView text) {
    const auto found =
        std::ranges::find_if(cases, [text](Case each) { return rawValue(each) == text; });
    return found == cases.end() ? std::nullopt : std::optional(*found);
}

} // namespace quorvane
