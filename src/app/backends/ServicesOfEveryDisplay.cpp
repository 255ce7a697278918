// SPDX-License-Identifier: MIT
#include "ServicesOfEveryDisplay.h"

#include "PortalLink.h"

#include <platform/LayeredAppearance.h>
#include <platform/LockableWorkspace.h>
#include <platform_dbus/DBusNotifications.h>
#include <platform_dbus/DBusScreenSaver.h>
#include <platform_dbus/PortalAppearance.h>
#include <platform_null/NullServices.h>
#include <platform_portal/PortalAutostart.h>
#include <platform_qt/QtStartupNotification.h>
#include <platform_system/InstallationSearch.h>
#include <platform_system/SystemTimeChanges.h>
#include <platform_tray/TrayStatusBar.h>
#include <platform_xdg/FileAppearance.h>
#include <platform_xdg/XdgAutostart.h>
#include <platform_xdg/XdgSoftwareCentre.h>
#include <settings/UserFolders.h>
#include <time/SystemCurrentZone.h>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QLoggingCategory>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcBackend, "quorvane.backend", QtFatalMsg)

/// In a sandbox the user's entries are out of reach, and one of the sandbox's starts nothing.
std::unique_ptr<Autostart>
makeAutostart(const DesktopSession& session, const Installation& installation) {
    if (installation.kind != Installation::Kind::Flatpak)
        return std::make_unique<XdgAutostart>(settingsFolders(session.environment));
    return std::make_unique<PortalAutostart>(
        PortalLink().portal(Wish::Free), session.queue, session.defaults);
}

} // namespace

PlatformServices servicesOfEveryDisplay(const DesktopSession& session) {
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        qCInfo(
            lcBackend,
            "no session bus: neither its tray, nor the settings portal, nor notifications");
    auto services = makeNullServices(session.queue);
    services.softwareCentre = std::make_unique<XdgSoftwareCentre>(
        MimeHandlers(processEnvironment()), QDesktopServices::openUrl);
    services.notifications = std::make_unique<DBusNotifications>(bus, session.queue);
    services.statusBar = std::make_unique<TrayStatusBar>(bus);
    services.timeChanges =
        std::make_unique<SystemTimeChanges>(SystemCurrentZone::settingFile(session.environment));
    if (session.isQtOnWayland())
        services.startupNotification = std::make_unique<QtStartupNotification>();
    services.installation = installationOf(QCoreApplication::applicationFilePath());
    services.autostart = makeAutostart(session, services.installation);
    return services;
}

void completeAppearance(PlatformServices& services, const Environment& environment) {
    LayeredAppearance::Sources sources;
    sources.push_back(std::make_unique<PortalAppearance>(QDBusConnection::sessionBus()));
    sources.push_back(std::move(services.appearance));
    sources.push_back(std::make_unique<FileAppearance>(settingsFolders(environment)));
    services.appearance = std::make_unique<LayeredAppearance>(std::move(sources));
}

void heedScreenLock(PlatformServices& services) {
    const auto bus = QDBusConnection::sessionBus();
    const auto usual = std::make_shared<DBusScreenSaver>(bus, u"org.freedesktop.ScreenSaver"_s);
    const auto gnomes = std::make_shared<DBusScreenSaver>(bus, u"org.gnome.ScreenSaver"_s);
    services.workspace =
        std::make_unique<LockableWorkspace>(std::move(services.workspace), [usual, gnomes] {
            return usual->isActive() || gnomes->isActive();
        });
}

} // namespace quorvane
