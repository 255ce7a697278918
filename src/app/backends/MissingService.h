// SPDX-License-Identifier: MIT
#pragma once

#include <backends/DesktopSession.h>
#include <backends/ServiceCandidate.h>
#include <set>

namespace quorvane {

/// Whether users know the service by itself.
[[nodiscard]] bool isForTheUser(ChosenService service);

/// As users know it; only for those of isForTheUser().
[[nodiscard]] DesktopService desktopServiceOf(ChosenService service);

/// What it means for the user that nobody has the service.
[[nodiscard]] QString explanationWithout(ChosenService service);

/// Puts among the services what is done where nobody has these.
void standIn(
    PlatformServices& services,
    const std::set<ChosenService>& missing,
    const DesktopSession& session);

} // namespace quorvane
