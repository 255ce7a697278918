// SPDX-License-Identifier: MIT
#pragma once

#include "LocalOffset.h"
#include "PosixRule.h"

#include <QByteArrayView>

#include <optional>
#include <vector>

namespace quorvane {

/// The offsets of one zone through all time, as its compiled file has them (TZif, RFC 9636). Read
/// here and not by Qt, which looks in one folder and keeps what it has read for good.
class ZoneRules {
public:
    /// The same offset always: none.
    ZoneRules() = default;

    /// None for bytes that are no such file, are cut off, or have an offset that no place can have.
    [[nodiscard]] static std::optional<ZoneRules> parse(QByteArrayView file);

    /// At so many seconds since 1970.
    [[nodiscard]] LocalOffset at(long long seconds) const;

private:
    LocalOffset m_first;
    // Each by itself, because all zones' are kept for the search: together they would take twice as
    // much.
    std::vector<long long> m_changes;     ///< when the offset changes, in their order
    std::vector<unsigned char> m_indices; ///< for each change, in m_offsets
    std::vector<LocalOffset> m_offsets;
    std::optional<PosixRule> m_rule; ///< after the last of them
};

} // namespace quorvane
