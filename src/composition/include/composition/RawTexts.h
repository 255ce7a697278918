// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <optional>

namespace quorvane {

/// A case of an enumeration with the text that is its label, its identity and its stored form.
template <typename Case>
struct RawText {
    Case value;
    QStringView text;
};

template <typename Case, std::size_t count>
using RawTexts = std::array<RawText<Case>, count>;

/// The text of `value`, which must be in the table.
template <typename Case, std::size_t count>
[[nodiscard]] QString textOf(const RawTexts<Case, count>& table, Case value) {
    for (const auto& row : table) {
        if (row.value == value)
            return row.text.toString();
    }
    Q_UNREACHABLE();
}

/// The case whose text is exactly `text`.
template <typename Case, std::size_t count>
[[nodiscard]] std::optional<Case> caseOf(const RawTexts<Case, count>& table, QStringView text) {
    for (const auto& row : table) {
        if (row.text == text)
            return row.value;
    }
    return std::nullopt;
}

} // namespace quorvane
