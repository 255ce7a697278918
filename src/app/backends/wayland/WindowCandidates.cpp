// SPDX-License-Identifier: MIT
#include "WindowCandidates.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <wayland_sway/SwayVirtualDesktops.h>
#include <wayland_sway/SwayWindowTraits.h>
#include <wayland_windows/WaylandWorkspace.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// Our windows' names: those of Wayland have the first, those of X11 the second.
QStringList ownNames() {
    return {QGuiApplication::desktopFileName(), QCoreApplication::applicationName()};
}

ServiceVerdict chooseWindows(WaylandLink& link, PlatformServices& services) {
    if (!link.offers(WaylandToplevels::interfaceName))
        return ServiceVerdict::no(u"the compositor does not list windows"_s);
    std::unique_ptr<VirtualDesktops> desktops;
    if (const auto sway = link.sway())
        desktops = std::make_unique<SwayVirtualDesktops>(sway);
    services.workspace = std::make_unique<WaylandWorkspace>(
        link.connection(), link.toplevels(), ownNames(), std::move(desktops));
    return ServiceVerdict::whole(u"the compositor lists windows"_s);
}

ServiceVerdict choosePanel(WaylandLink& link, PlatformServices& services) {
    if (!link.session().isQtOnWayland())
        return ServiceVerdict::no(u"Qt does not run on Wayland"_s);
    const auto sway = link.sway();
    if (!sway)
        return ServiceVerdict::no(u"sway does not answer"_s);
    services.windowTraits = std::make_unique<SwayWindowTraits>(sway);
    return ServiceVerdict::whole(u"sway places it"_s);
}

} // namespace

ServiceCandidates windowCandidates(const std::shared_ptr<WaylandLink>& link) {
    return {
        {ChosenService::Windows,
         u"wayland"_s,
         [link](PlatformServices& services, Wish) {
             return chooseWindows(*link, services);
         }},
        {ChosenService::Panel,
         u"wayland"_s,
         [link](PlatformServices& services, Wish) {
             return choosePanel(*link, services);
         }},
    };
}

} // namespace quorvane
