// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>
#include <platform/EventTap.h>
#include <platform/KeyPoster.h>
#include <platform/KeyboardLayout.h>
#include <platform/NoSoftwareCentre.h>
#include <platform/NoStatusBar.h>
#include <platform/Pasteboard.h>
#include <platform/UnknownAppearance.h>
#include <platform/WindowTraits.h>
#include <platform/Workspace.h>

#include <memory>

namespace quorvane {

/// One of each desktop service, none absent.
struct PlatformServices {
    std::unique_ptr<AccessibilityRight> accessibilityRight;
    std::unique_ptr<EventTapService> eventTaps;
    std::unique_ptr<KeyPoster> keyPoster;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<KeyboardLayout> keyboardLayout;
    std::unique_ptr<WindowTraits> windowTraits;

    // No display server tells these; the one who chooses the backends knows where to ask.
    std::unique_ptr<Appearance> appearance = std::make_unique<UnknownAppearance>();
    std::unique_ptr<SoftwareCentre> softwareCentre = std::make_unique<NoSoftwareCentre>();
    std::unique_ptr<StatusBar> statusBar = std::make_unique<NoStatusBar>();
};

} // namespace quorvane
