// SPDX-License-Identifier: MIT
#pragma once

#include "WaylandLink.h"

#include <backends/ServiceCandidate.h>
#include <memory>

namespace quorvane {

/// What tells of the windows of others, and places our own.
[[nodiscard]] ServiceCandidates windowCandidates(const std::shared_ptr<WaylandLink>& link);

} // namespace quorvane
