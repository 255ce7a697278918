// SPDX-License-Identifier: MIT
#include <algorithm>
#include <kde-keystate-client.h>
#include <set>
#include <utility>
#include <wayland_kwin/KwinModifiers.h>

namespace quorvane {

struct KwinModifiers::Wait {
    Wait(
        WaylandConnection& connection,
        const WaylandGlobal& global,
        std::vector<Modifier> modifiers,
        std::function<void()> whenDone)
        : proxy(connection.globals().bind<org_kde_kwin_keystate>(
              global, org_kde_kwin_keystate_interface, firstVersion)),
          inTheWay(std::move(modifiers)),
          done(std::move(whenDone)) {
        static constexpr org_kde_kwin_keystate_listener events{stateChanged};
        org_kde_kwin_keystate_add_listener(proxy, &events, this);
        org_kde_kwin_keystate_fetchStates(proxy);
        told = connection.whenSettled([this] {
            isTold = true;
            endIfReleased();
        });
    }

    ~Wait() { org_kde_kwin_keystate_destroy(proxy); }

    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    static void stateChanged(
        void* data, org_kde_kwin_keystate* /*proxy*/, std::uint32_t key, std::uint32_t state) {
        auto& wait = *static_cast<Wait*>(data);
        if (state == ORG_KDE_KWIN_KEYSTATE_STATE_PRESSED)
            wait.held.insert(key);
        else
            wait.held.erase(key);
        wait.endIfReleased();
    }

    /// Whoever is called may drop the wait.
    void endIfReleased() {
        const auto isHeld = [this](Modifier modifier) {
            return held.contains(modifier);
        };
        if (!isTold || std::ranges::any_of(inTheWay, isHeld))
            return;
        if (const auto handler = std::exchange(done, {}))
            handler();
    }

    org_kde_kwin_keystate* proxy;
    std::vector<Modifier> inTheWay;
    std::function<void()> done;
    std::set<std::uint32_t> held;
    WaylandSubscription told;
    bool isTold = false; ///< whether the first states have all come
};

KwinModifiers::KwinModifiers(std::shared_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)) {
}

WaylandSubscription
KwinModifiers::whenReleased(std::vector<Modifier> modifiers, std::function<void()> done) {
    const auto& globals = m_connection->globals().all();
    const auto global = std::ranges::find(globals, interfaceName, &WaylandGlobal::interface);
    if (m_connection->isLost() || global == globals.end() || global->version < firstVersion) {
        done();
        return {};
    }
    return WaylandSubscription(
        std::make_shared<Wait>(*m_connection, *global, std::move(modifiers), std::move(done)));
}

} // namespace quorvane
