// SPDX-License-Identifier: MIT
#pragma once

#include "WaylandLink.h"

#include <backends/ServiceCandidate.h>
#include <memory>

namespace quorvane {

/// The clipboard by the extension for clipboard managers.
[[nodiscard]] ServiceCandidates clipboardCandidates(const std::shared_ptr<WaylandLink>& link);

} // namespace quorvane
