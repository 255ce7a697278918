// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>
#include <platform/Appearance.h>
#include <platform/Autostart.h>
#include <platform/DesktopShortcut.h>
#include <platform/EventTap.h>
#include <platform/Installation.h>
#include <platform/KeyPoster.h>
#include <platform/KeyboardLayout.h>
#include <platform/Notifications.h>
#include <platform/Pasteboard.h>
#include <platform/ServiceState.h>
#include <platform/SoftwareCentre.h>
#include <platform/StartupNotification.h>
#include <platform/StatusBar.h>
#include <platform/TimeChanges.h>
#include <platform/WindowTraits.h>
#include <platform/Workspace.h>

#include <memory>
#include <vector>

namespace quorvane {

/// One of each desktop service, none absent: the set begins with the services that do nothing, and
/// each backend replaces those that it has.
struct PlatformServices {
    std::unique_ptr<AccessibilityRight> accessibilityRight;
    std::unique_ptr<EventTapService> eventTaps;
    std::unique_ptr<DesktopShortcut> desktopShortcut;
    std::unique_ptr<KeyPoster> keyPoster;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<KeyboardLayout> keyboardLayout;
    std::unique_ptr<WindowTraits> windowTraits;
    std::unique_ptr<StartupNotification> startupNotification;

    std::unique_ptr<Appearance> appearance;
    std::unique_ptr<Notifications> notifications;
    std::unique_ptr<SoftwareCentre> softwareCentre;
    std::unique_ptr<StatusBar> statusBar;
    std::unique_ptr<TimeChanges> timeChanges;
    std::unique_ptr<Autostart> autostart;

    Installation installation;

    /// What was chosen for each of those that differ between desktops; empty where all are whole.
    std::vector<ServiceState> states;
};

} // namespace quorvane
