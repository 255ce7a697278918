// SPDX-License-Identifier: MIT
#include "Candidates.h"
#include "PortalLink.h"

#include <platform_portal/PortalAccessibilityRight.h>
#include <platform_portal/PortalKeyPoster.h>

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
    services.keyPoster =
        std::make_unique<PortalKeyPoster>(keyboard, session.queue, modifierHeld(session));
    return ServiceVerdict::limited(
        u"the portal has it, if the user agrees"_s,
        QCoreApplication::translate(
            "Backends", "The desktop asks you once in each run whether Quorvane may type."));
}

} // namespace

ServiceCandidates portalCandidates(const DesktopSession& session) {
    const auto link = std::make_shared<PortalLink>();
    return {
        {ChosenService::Keys, u"portal"_s, [link, session](PlatformServices& services, Wish wish) {
             return chooseKeys(services, wish, *link, session);
         }}};
}

} // namespace quorvane
