// SPDX-License-Identifier: MIT
#pragma once

#include <platform_portal/PortalDesktop.h>

#include <QString>

#include <backends/ServiceCandidate.h>
#include <memory>

namespace quorvane {

/// The desktop portal, met when the first service asks for it.
class PortalLink {
public:
    /// Null where there is no session bus; without a wish also where nobody on it is the portal, or
    /// would be started as it.
    [[nodiscard]] std::shared_ptr<PortalDesktop> portal(Wish wish);

    /// Whether the portal runs and has the interface; waits for it at most half a second.
    [[nodiscard]] static bool offers(const QString& interface);

    /// Whether a program has the name on the session bus.
    [[nodiscard]] static bool isRunning(const QString& name);

private:
    std::shared_ptr<PortalDesktop> m_portal;
};

} // namespace quorvane
