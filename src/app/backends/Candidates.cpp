// SPDX-License-Identifier: MIT
#include "Candidates.h"

#include <iterator>

namespace quorvane {

ServiceCandidates allCandidates(const DesktopSession& session) {
    ServiceCandidates all;
    const auto add = [&all](ServiceCandidates more) {
        all.insert(
            all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    };
    add(waylandCandidates(session));
    add(x11Candidates(session));
    add(portalCandidates(session));
    return all;
}

} // namespace quorvane
