// SPDX-License-Identifier: MIT
#include "Backends.h"

#include <platform_dbus/PortalAppearance.h>
#include <platform_null/NullServices.h>
#include <platform_tray/TrayStatusBar.h>
#include <platform_x11/X11Services.h>
#include <platform_xdg/XdgSoftwareCentre.h>

#include <QDesktopServices>
#include <QLoggingCategory>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcBackend, "quorvane.backend", QtFatalMsg)

bool wantsX11(const QString& forced, const QString& qtPlatform) {
    return forced == "x11"_L1 || (forced != "null"_L1 && qtPlatform == "xcb"_L1);
}

} // namespace

PlatformServices
makePlatformServices(const QString& forced, const QString& qtPlatform, MainQueue& queue) {
    auto services = makeNullServices(queue);
    if (wantsX11(forced, qtPlatform) && addX11Services(services, queue)) {
        services.softwareCentre = std::make_unique<XdgSoftwareCentre>(
            MimeHandlers(processEnvironment()), QDesktopServices::openUrl);
        services.appearance = std::make_unique<PortalAppearance>(QDBusConnection::sessionBus());
        services.statusBar = std::make_unique<TrayStatusBar>(QDBusConnection::sessionBus());
        return services;
    }
    qCInfo(
        lcBackend,
        "no services of a desktop: \"%ls\" on \"%ls\"",
        qUtf16Printable(forced),
        qUtf16Printable(qtPlatform));
    return services;
}

} // namespace quorvane
