// SPDX-License-Identifier: MIT
#pragma once

#include <platform_portal/PortalDesktop.h>
#include <platform_portal/PortalKeyboard.h>

#include <QString>

#include <backends/ServiceCandidate.h>
#include <memory>
#include <utility>

namespace quorvane {

/// The desktop portal, met when the first service asks for it.
class PortalLink {
public:
    /// Null where there is no session bus; without a wish also where nobody on it is the portal, or
    /// would be started as it.
    [[nodiscard]] std::shared_ptr<PortalDesktop> portal(Wish wish);

    /// Whether the portal runs and has the interface; waits for it at most half a second.
    [[nodiscard]] static bool offers(const QString& interface);

    /// The same; one that does not run, but would be started, may have it.
    [[nodiscard]] static bool mayOffer(const QString& interface);

    /// The keyboard that types; null where another backend has the keys.
    [[nodiscard]] const std::shared_ptr<PortalKeyboard>& keyboard() const { return m_keyboard; }

    void adopt(std::shared_ptr<PortalKeyboard> keyboard) { m_keyboard = std::move(keyboard); }

    /// Whether a program has the name on the session bus.
    [[nodiscard]] static bool isRunning(const QString& name);

private:
    std::shared_ptr<PortalDesktop> m_portal;
    std::shared_ptr<PortalKeyboard> m_keyboard;
};

} // namespace quorvane
