// SPDX-License-Identifier: MIT
#include "Candidates.h"
#include "PortalLink.h"
#include "QtClipboard.h"

#include <platform_portal/PortalAccessibilityRight.h>
#include <platform_portal/PortalDesktopShortcut.h>
#include <platform_portal/PortalEventTapService.h>
#include <platform_portal/PortalKeyPoster.h>
#include <platform_portal/PortalPasteboard.h>

#include <QCoreApplication>
#include <QGuiApplication>

#include <memory>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// Shift is one of the paste keys; what else is held would join in. An X server knows, though only
/// while a window of its own has the keyboard.
bool isModifierHeldOnX11() {
    constexpr auto inTheWay = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (QGuiApplication::queryKeyboardModifiers() & inTheWay) != 0;
}

PortalKeyPoster::ModifierHeld modifierHeld(const DesktopSession& session) {
    if (session.isQtOnX11())
        return isModifierHeldOnX11;
    return [] {
        return false;
    };
}

ServiceVerdict
chooseKeys(PlatformServices& services, Wish wish, PortalLink& link, const DesktopSession& session) {
    const auto portal = link.portal(wish);
    if (!portal)
        return ServiceVerdict::no(u"there is no portal on the bus"_s);
    const auto keyboard =
        std::make_shared<PortalKeyboard>(portal, session.queue, RestoreToken(session.defaults));
    services.accessibilityRight = std::make_unique<PortalAccessibilityRight>(keyboard);
    services.keyPoster = std::make_unique<PortalKeyPoster>(
        keyboard, session.queue, *services.keyboardLayout, modifierHeld(session));
    link.adopt(keyboard);
    return ServiceVerdict::limited(
        u"the portal has it, if the user agrees"_s,
        QCoreApplication::translate(
            "Backends",
            "Quorvane types once you have allowed it under “Insert into Other Apps”; until then "
            "Insert copies the text."));
}

/// After the keys, whose consent it shares.
ServiceVerdict chooseClipboard(
    PlatformServices& services, Wish wish, PortalLink& link, const DesktopSession& session) {
    const auto& keyboard = link.keyboard();
    if (!keyboard)
        return ServiceVerdict::no(u"the portal does not type"_s);
    if (wish == Wish::Free && !PortalLink::mayOffer(u"org.freedesktop.portal.Clipboard"_s))
        return ServiceVerdict::no(u"the portal has none"_s);
    const auto clipboard = std::make_shared<PortalClipboard>(link.portal(wish), session.queue);
    keyboard->share(clipboard);
    services.pasteboard =
        std::make_unique<PortalPasteboard>(clipboard, makeQtClipboard(session), session.queue);
    return ServiceVerdict::limited(
        u"the portal shares it, if the user agrees"_s,
        QCoreApplication::translate(
            "Backends",
            "The desktop shares the clipboard with Quorvane once you have allowed typing under "
            "“Insert into Other Apps”, and as long as that lasts. Without it, Copy works while a "
            "window of Quorvane has the keyboard."));
}

/// Why others should have the shortcut; none for nothing.
QString reasonAgainstShortcut() {
    // It binds the keys without a dialog, and is there also where the portal has none.
    if (PortalLink::isRunning(u"org.gnome.SettingsDaemon.MediaKeys"_s))
        return u"the desktop has a list of its own"_s;
    return PortalLink::offers(u"org.freedesktop.portal.GlobalShortcuts"_s)
               ? QString()
               : u"no portal that runs has shortcuts"_s;
}

ServiceVerdict chooseShortcut(
    PlatformServices& services, Wish wish, PortalLink& link, const DesktopSession& session) {
    const auto reason = wish == Wish::Free ? reasonAgainstShortcut() : QString();
    const auto portal = reason.isEmpty() ? link.portal(wish) : nullptr;
    if (!portal)
        return ServiceVerdict::no(reason.isEmpty() ? u"there is no portal on the bus"_s : reason);
    const auto shortcut = std::make_shared<PortalShortcut>(portal, session.queue, session.defaults);
    services.eventTaps = std::make_unique<PortalEventTapService>(shortcut);
    services.desktopShortcut = std::make_unique<PortalDesktopShortcut>(shortcut);
    return ServiceVerdict::limited(
        u"the portal may have it"_s,
        QCoreApplication::translate(
            "Backends",
            "This desktop does not let Quorvane take a shortcut by itself: it is added under "
            "“Keyboard Shortcut”."));
}

} // namespace

ServiceCandidates portalCandidates(const DesktopSession& session) {
    const auto link = std::make_shared<PortalLink>();
    const auto candidate = [link, session](ChosenService service, auto choose) -> ServiceCandidate {
        return {
            service, u"portal"_s, [link, session, choose](PlatformServices& services, Wish wish) {
                return choose(services, wish, *link, session);
            }};
    };
    return {
        candidate(ChosenService::Keys, chooseKeys),
        candidate(ChosenService::Clipboard, chooseClipboard),
        candidate(ChosenService::Shortcut, chooseShortcut)};
}

} // namespace quorvane
