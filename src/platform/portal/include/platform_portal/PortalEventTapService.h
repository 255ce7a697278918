// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>
#include <platform_portal/PortalShortcut.h>

#include <memory>
#include <utility>

namespace quorvane {

/// The shortcut that the user has had the desktop add; there is no tap before that.
class PortalEventTapService final : public EventTapService {
public:
    explicit PortalEventTapService(std::shared_ptr<PortalShortcut> shortcut)
        : m_shortcut(std::move(shortcut)) {}

    [[nodiscard]] TapResult createTap(TapHandlers handlers) override;

private:
    std::shared_ptr<PortalShortcut> m_shortcut;
};

} // namespace quorvane
