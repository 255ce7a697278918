// SPDX-License-Identifier: MIT
#include "../Candidates.h"
#include "WaylandLink.h"

#include <memory>

namespace quorvane {

ServiceCandidates waylandCandidates(const DesktopSession& session) {
    const auto link = std::make_shared<WaylandLink>(session);
    return {};
}

} // namespace quorvane
