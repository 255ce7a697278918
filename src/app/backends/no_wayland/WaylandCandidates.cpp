// SPDX-License-Identifier: MIT
#include "../Candidates.h"

namespace quorvane {

ServiceCandidates waylandCandidates(const DesktopSession& /*session*/) {
    return {};
}

} // namespace quorvane
