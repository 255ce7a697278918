// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>
#include <platform/KeyboardLayout.h>

#include <QDBusConnection>

#include <memory>

namespace quorvane {

class KGlobalAccel;

/// Global shortcuts by KDE's daemon, in step with what System Settings shows. It is for compositors
/// that host the daemon: a daemon by itself sees no keys on Wayland.
class KGlobalAccelTapService final : public EventTapService {
public:
    /// Whether somebody on the bus is the daemon; nobody is started for the question.
    [[nodiscard]] static bool isOffered(const QDBusConnection& bus);

    /// `usual` is what System Settings offers to go back to. The layout must outlive the service.
    KGlobalAccelTapService(
        const QDBusConnection& bus, const KeyboardLayout& layout, const KeyChord& usual);

    [[nodiscard]] TapResult createTap(TapHandlers handlers) override;

private:
    const KeyboardLayout& m_layout;
    KeyChord m_usual;
    std::shared_ptr<KGlobalAccel> m_daemon;
};

} // namespace quorvane
