// SPDX-License-Identifier: MIT
#pragma once

#include "WaylandLink.h"

#include <backends/ServiceCandidate.h>
#include <memory>

namespace quorvane {

/// What KWin has of its own: posted keys, the list of windows and the daemon of shortcuts.
[[nodiscard]] ServiceCandidates kwinCandidates(const std::shared_ptr<WaylandLink>& link);

} // namespace quorvane
