// SPDX-License-Identifier: MIT
#include "KeyboardCandidates.h"

#include <wayland_keyboard/WaylandAccessibilityRight.h>
#include <wayland_keyboard/WaylandKeyPoster.h>
#include <wayland_keyboard/WaylandKeyboardLayout.h>
#include <wayland_keyboard/WaylandVirtualKeyboards.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

ServiceVerdict chooseKeys(WaylandLink& link, PlatformServices& services) {
    if (!link.offers(WaylandVirtualKeyboards::interfaceName))
        return ServiceVerdict::no(u"the compositor lets nobody bring a keyboard"_s);
    const auto keyboards =
        std::make_shared<WaylandVirtualKeyboards>(link.connection(), link.seats());
    services.accessibilityRight = std::make_unique<WaylandAccessibilityRight>(keyboards);
    services.keyPoster = std::make_unique<WaylandKeyPoster>(
        link.connection(), keyboards, link.session().queue, [windows = link.toplevels()] {
            return windows->activatedNames();
        });
    return ServiceVerdict::whole(u"a keyboard of our own"_s);
}

ServiceVerdict chooseLayout(WaylandLink& link, PlatformServices& services, Wish wish) {
    if (wish == Wish::Free && !link.session().isQtOnWayland())
        return ServiceVerdict::no(u"Qt does not run on Wayland"_s);
    const auto connection = link.connection();
    if (!connection)
        return ServiceVerdict::no(u"there is no compositor"_s);
    services.keyboardLayout = std::make_unique<WaylandKeyboardLayout>(connection);
    return ServiceVerdict::whole(u"the compositor's keymap"_s);
}

} // namespace

ServiceCandidates keyboardCandidates(const std::shared_ptr<WaylandLink>& link) {
    return {
        {ChosenService::Keys,
         u"wayland"_s,
         [link](PlatformServices& services, Wish) {
             return chooseKeys(*link, services);
         }},
        {ChosenService::Layout,
         u"wayland"_s,
         [link](PlatformServices& services, Wish wish) {
             return chooseLayout(*link, services, wish);
         }},
    };
}

} // namespace quorvane
