// SPDX-License-Identifier: MIT
#include "Backends.h"

#include <platform/LayeredAppearance.h>
#include <platform_dbus/DBusNotifications.h>
#include <platform_dbus/PortalAppearance.h>
#include <platform_null/NullServices.h>
#include <platform_qt/QtPasteboard.h>
#include <platform_system/SystemTimeChanges.h>
#include <platform_tray/TrayStatusBar.h>
#include <platform_x11/X11Services.h>
#include <platform_x11/XWayland.h>
#include <platform_xdg/FileAppearance.h>
#include <platform_xdg/XdgAutostart.h>
#include <platform_xdg/XdgSoftwareCentre.h>
#include <settings/UserFolders.h>
#include <time/SystemCurrentZone.h>

#include <QDesktopServices>
#include <QFileInfo>
#include <QLoggingCategory>

#include <optional>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcBackend, "quorvane.backend", QtFatalMsg)

/// The part of X11 to use, if any.
std::optional<X11Reach> wantedX11(const Environment& environment, const QString& qtPlatform) {
    const auto forced = environment("QUORVANE_BACKEND").value_or(QString());
    if (forced == "x11"_L1)
        return X11Reach::Session;
    if (!forced.isEmpty() || qtPlatform != "xcb"_L1)
        return std::nullopt;
    return runsOnXWayland(environment) ? X11Reach::OwnWindows : X11Reach::Session;
}

/// A compositor of Wayland serves the clipboard to the program that has the keyboard.
QtPasteboard::Access clipboardAccess(const QString& qtPlatform) {
    return qtPlatform.startsWith("wayland"_L1) ? QtPasteboard::Access::WithFocus
                                               : QtPasteboard::Access::Always;
}

void addServicesOfEveryDisplay(
    PlatformServices& services,
    const Environment& environment,
    const QString& qtPlatform,
    MainQueue& queue) {
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        qCInfo(
            lcBackend,
            "no session bus: neither its tray, nor the settings portal, nor notifications");
    services.softwareCentre = std::make_unique<XdgSoftwareCentre>(
        MimeHandlers(processEnvironment()), QDesktopServices::openUrl);
    services.notifications = std::make_unique<DBusNotifications>(bus, queue);
    services.statusBar = std::make_unique<TrayStatusBar>(bus);
    services.pasteboard = std::make_unique<QtPasteboard>(queue, clipboardAccess(qtPlatform));
    services.timeChanges =
        std::make_unique<SystemTimeChanges>(SystemCurrentZone::settingFile(environment));
    // In a sandbox the user's entries are out of reach, and one of the sandbox's starts nothing.
    if (!QFileInfo::exists(u"/.flatpak-info"_s))
        services.autostart = std::make_unique<XdgAutostart>(settingsFolders(environment));
}

/// The portal's word counts most, then what the settings manager of the display says, which
/// `services` has by now, then what stands in files.
void completeAppearance(PlatformServices& services, const Environment& environment) {
    LayeredAppearance::Sources sources;
    sources.push_back(std::make_unique<PortalAppearance>(QDBusConnection::sessionBus()));
    sources.push_back(std::move(services.appearance));
    sources.push_back(std::make_unique<FileAppearance>(settingsFolders(environment)));
    services.appearance = std::make_unique<LayeredAppearance>(std::move(sources));
}

const char* nameOf(X11Reach reach) {
    return reach == X11Reach::Session
               ? "shortcut, keys, windows and clipboard: X11"
               : "XWayland: clipboard only; the keys and windows of others are out of its reach";
}

} // namespace

PlatformServices makePlatformServices(
    const Environment& environment,
    const QString& qtPlatform,
    MainQueue& queue,
    const std::function<void()>& onDisplayLost) {
    auto services = makeNullServices(queue);
    addServicesOfEveryDisplay(services, environment, qtPlatform, queue);
    const auto x11 = wantedX11(environment, qtPlatform);
    if (!x11)
        qCInfo(
            lcBackend,
            "no backend for \"%ls\": the clipboard through Qt",
            qUtf16Printable(qtPlatform));
    else if (!addX11Services(services, queue, *x11, onDisplayLost))
        qCInfo(lcBackend, "no X server answers: the clipboard through Qt");
    else
        qCInfo(lcBackend, "%s", nameOf(*x11));
    completeAppearance(services, environment);
    return services;
}

} // namespace quorvane
