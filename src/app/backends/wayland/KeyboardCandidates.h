// SPDX-License-Identifier: MIT
#pragma once

#include "WaylandLink.h"

#include <backends/ServiceCandidate.h>
#include <memory>

namespace quorvane {

/// What types, and tells what the user's keys type.
[[nodiscard]] ServiceCandidates keyboardCandidates(const std::shared_ptr<WaylandLink>& link);

} // namespace quorvane
