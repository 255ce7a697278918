// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>

#include <optional>

namespace quorvane {

/// What became of the keys, for posters that tell it at once; none for those that take their time.
[[nodiscard]] inline std::optional<PostOutcome>
pasteOutcome(KeyPoster& poster, const PasteTarget& target = {}) {
    std::optional<PostOutcome> outcome;
    poster.paste(target, [&outcome](PostOutcome told) { outcome = told; });
    return outcome;
}

} // namespace quorvane
