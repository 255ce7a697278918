// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>
#include <platform_portal/PortalShortcut.h>

#include <memory>
#include <optional>

namespace quorvane {

/// Presses of the shortcut at the portal, told as presses of the chord that is watched.
class PortalEventTap final : public EventTap {
public:
    PortalEventTap(std::shared_ptr<PortalShortcut> shortcut, TapHandlers handlers);
    ~PortalEventTap() override;

    PortalEventTap(const PortalEventTap&) = delete;
    PortalEventTap& operator=(const PortalEventTap&) = delete;

    void watch(std::optional<KeyChord> chord) override;
    void enable() override;
    void disable() override;
    [[nodiscard]] TapDelivery delivery() const override;

    [[nodiscard]] QString holder() const override { return {}; }

    [[nodiscard]] bool tellsRelease() const override { return true; }

    [[nodiscard]] bool isKeyDown() override { return m_shortcut->isDown(); }

private:
    void tellPress();

    std::shared_ptr<PortalShortcut> m_shortcut;
    TapHandlers m_handlers;
    std::optional<KeyChord> m_chord;
    bool m_isEnabled = false;
};

} // namespace quorvane
