// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <settings/DefaultsStore.h>
#include <settings/Environment.h>

#include <QString>

#include <backends/Compositor.h>
#include <functional>

namespace quorvane {

/// What there is to choose from. What is referred to must outlive it, queue and settings also the
/// services; these keep what they need of the compositor's connection themselves.
struct DesktopSession {
    const Environment& environment;
    QString qtPlatform; ///< the plugin that Qt runs on: "xcb", "wayland"
    MainQueue& queue;
    DefaultsStore& defaults; ///< where the desktop's consents are kept
    const Compositor& compositor;
    /// For the display that Qt itself runs on. May be called more than once.
    std::function<void()> onDisplayLost = [] {
    };

    [[nodiscard]] bool isQtOnX11() const { return qtPlatform == QLatin1String("xcb"); }

    [[nodiscard]] bool isQtOnWayland() const {
        return qtPlatform.startsWith(QLatin1String("wayland"));
    }
};

} // namespace quorvane
