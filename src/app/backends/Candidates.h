// SPDX-License-Identifier: MIT
#pragma once

#include <backends/DesktopSession.h>
#include <backends/ServiceCandidate.h>

namespace quorvane {

// Each family of candidates; what they share, such as a connection, is opened when one is asked.

[[nodiscard]] ServiceCandidates waylandCandidates(const DesktopSession& session);
[[nodiscard]] ServiceCandidates x11Candidates(const DesktopSession& session);
[[nodiscard]] ServiceCandidates portalCandidates(const DesktopSession& session);

/// All of them; of those for one service, the first that can have it gets it.
[[nodiscard]] ServiceCandidates allCandidates(const DesktopSession& session);

} // namespace quorvane
