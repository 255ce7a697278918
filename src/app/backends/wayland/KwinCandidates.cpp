// SPDX-License-Identifier: MIT
#include "KwinCandidates.h"

#include <hotkey/HotKeyCombo.h>
#include <platform_kglobalaccel/KGlobalAccelTapService.h>

#include <QDBusConnection>

#include <wayland_kwin/KwinAccessibilityRight.h>
#include <wayland_kwin/KwinKeyPoster.h>
#include <wayland_kwin/PlasmaWorkspace.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

// What the compositor that hosts the daemon of shortcuts offers to all programs.
constexpr auto shellName = "org_kde_plasma_shell";

class KwinCandidate {
public:
    explicit KwinCandidate(std::shared_ptr<WaylandLink> link) : m_link(std::move(link)) {}

    ServiceVerdict chooseKeys(PlatformServices& services) {
        if (!m_link->offers(KwinFakeInput::interfaceName))
            return ServiceVerdict::no(u"no fake input is offered"_s);
        const auto input = std::make_shared<KwinFakeInput>(m_link->connection());
        if (!input->isAvailable())
            return ServiceVerdict::no(u"the fake input that is offered has no keys"_s);
        services.accessibilityRight = std::make_unique<KwinAccessibilityRight>(input);
        services.keyPoster = std::make_unique<KwinKeyPoster>(
            input,
            KwinModifiers(m_link->connection()),
            m_link->session().queue,
            *services.keyboardLayout,
            [windows = windows()] { return windows->activeNames(); });
        return ServiceVerdict::whole(u"the desktop entry may post keys"_s);
    }

    ServiceVerdict chooseWindows(PlatformServices& services) {
        if (!m_link->offers(PlasmaWindows::interfaceName) || !windows()->isListed())
            return ServiceVerdict::no(u"no list of windows is offered"_s);
        services.workspace = std::make_unique<PlasmaWorkspace>(
            windows(), std::make_unique<PlasmaVirtualDesktops>(m_link->connection()));
        return ServiceVerdict::whole(u"the desktop entry may list windows"_s);
    }

    ServiceVerdict chooseShortcut(PlatformServices& services) {
        if (!m_link->offers(shellName))
            return ServiceVerdict::no(u"this compositor does not host the daemon"_s);
        const auto bus = QDBusConnection::sessionBus();
        if (!KGlobalAccelTapService::isOffered(bus))
            return ServiceVerdict::no(u"the daemon is not on the bus"_s);
        const KeyChord usual{
            HotKeyCombo::defaultKeyCode,
            toModifierFlags(HotKeyCombo::defaultModifiers).value_or(modifier::none)};
        services.eventTaps =
            std::make_unique<KGlobalAccelTapService>(bus, *services.keyboardLayout, usual);
        return ServiceVerdict::whole(u"the compositor's daemon is on the bus"_s);
    }

private:
    [[nodiscard]] std::shared_ptr<PlasmaWindows> windows() {
        if (!m_windows)
            m_windows = std::make_shared<PlasmaWindows>(m_link->connection());
        return m_windows;
    }

    std::shared_ptr<WaylandLink> m_link;
    std::shared_ptr<PlasmaWindows> m_windows;
};

} // namespace

ServiceCandidates kwinCandidates(const std::shared_ptr<WaylandLink>& link) {
    const auto kwin = std::make_shared<KwinCandidate>(link);
    return {
        {ChosenService::Keys,
         u"kwin"_s,
         [kwin](PlatformServices& services, Wish) {
             return kwin->chooseKeys(services);
         }},
        {ChosenService::Windows,
         u"kwin"_s,
         [kwin](PlatformServices& services, Wish) {
             return kwin->chooseWindows(services);
         }},
        {ChosenService::Shortcut,
         u"kglobalaccel"_s,
         [kwin](PlatformServices& services, Wish) {
             return kwin->chooseShortcut(services);
         }},
    };
}

} // namespace quorvane
