// SPDX-License-Identifier: MIT
#include "Candidates.h"

#include <platform_x11/X11Backend.h>
#include <platform_x11/XWayland.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Adding = std::function<void(const X11Backend&, PlatformServices&)>;

void addPanelAndAppearance(const X11Backend& backend, PlatformServices& services) {
    backend.addPanel(services);
    backend.addAppearance(services);
}

/// The X server, opened when the first service asks for it.
class X11Candidate {
public:
    explicit X11Candidate(const DesktopSession& session) : m_session(session) {}

    /// What XWayland has, too.
    ServiceVerdict chooseOwn(PlatformServices& services, Wish wish, const Adding& add) {
        if (!isWanted(wish))
            return ServiceVerdict::no(u"Qt does not run on X11"_s);
        if (!open())
            return ServiceVerdict::no(u"no X server answers"_s);
        add(*m_backend, services);
        return ServiceVerdict::whole(
            isXWayland() ? u"XWayland shares it"_s : u"the X server has it"_s);
    }

    /// What an X server has only of the programs of X11.
    ServiceVerdict chooseOfOthers(PlatformServices& services, Wish wish, const Adding& add) {
        if (wish == Wish::Free && m_session.isQtOnX11() && isXWayland())
            return ServiceVerdict::no(u"out of XWayland's reach"_s);
        return chooseOwn(services, wish, add);
    }

    [[nodiscard]] X11Reach reach() {
        return isXWayland() ? X11Reach::OwnWindows : X11Reach::Session;
    }

private:
    [[nodiscard]] bool isWanted(Wish wish) const {
        return wish == Wish::Forced || m_session.isQtOnX11();
    }

    [[nodiscard]] bool isXWayland() {
        if (!m_isXWayland)
            m_isXWayland = runsOnXWayland(m_session.environment);
        return *m_isXWayland;
    }

    [[nodiscard]] bool open() {
        if (!std::exchange(m_hasTried, true))
            m_backend = X11Backend::open(m_session.queue, m_session.onDisplayLost);
        return m_backend != nullptr;
    }

    DesktopSession m_session;
    bool m_hasTried = false;
    std::shared_ptr<X11Backend> m_backend;
    std::optional<bool> m_isXWayland;
};

} // namespace

ServiceCandidates x11Candidates(const DesktopSession& session) {
    const auto x11 = std::make_shared<X11Candidate>(session);
    const auto own = [x11](ChosenService service, const Adding& add) -> ServiceCandidate {
        return {service, u"x11"_s, [x11, add](PlatformServices& services, Wish wish) {
                    return x11->chooseOwn(services, wish, add);
                }};
    };
    const auto ofOthers = [x11](ChosenService service, const Adding& add) -> ServiceCandidate {
        return {service, u"x11"_s, [x11, add](PlatformServices& services, Wish wish) {
                    return x11->chooseOfOthers(services, wish, add);
                }};
    };
    const auto addClipboard = [x11](const X11Backend& backend, PlatformServices& services) {
        backend.addClipboard(services, x11->reach());
    };
    return {
        own(ChosenService::Clipboard, addClipboard),
        ofOthers(ChosenService::Keys, &X11Backend::addKeys),
        ofOthers(ChosenService::Shortcut, &X11Backend::addShortcut),
        ofOthers(ChosenService::Windows, &X11Backend::addWindows),
        own(ChosenService::Panel, addPanelAndAppearance),
        own(ChosenService::Layout, &X11Backend::addKeyboardLayout),
    };
}

} // namespace quorvane
