// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/EventTap.h>
#include <x11_keyboard/X11GrabbedKeys.h>
#include <x11_server/X11Connection.h>

#include <memory>

namespace quorvane {

/// Taps that hold the watched press by a grab on the whole display.
class X11EventTapService final : public EventTapService {
public:
    /// The queue must outlive the taps.
    X11EventTapService(
        std::shared_ptr<X11Connection> connection,
        MainQueue& mainQueue,
        std::shared_ptr<X11GrabbedKeys> grabbedKeys);

    /// Fails for good once the X server is gone.
    [[nodiscard]] TapResult createTap(TapHandlers handlers) override;

private:
    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_mainQueue;
    std::shared_ptr<X11GrabbedKeys> m_grabbedKeys;
};

} // namespace quorvane
