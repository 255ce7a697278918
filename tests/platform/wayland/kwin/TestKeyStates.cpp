// SPDX-License-Identifier: MIT
#include "TestKeyStates.h"

#include <kde-keystate-client.h>
#include <utility>
#include <wayland-server-core.h>

namespace quorvane {

namespace {

// By its number in the protocol.
constexpr std::uint32_t stateChanged = 0;

} // namespace

struct TestKeyStates::Server {
    static TestKeyStates& states(wl_resource* resource) {
        return *static_cast<TestKeyStates*>(wl_resource_get_user_data(resource));
    }

    // In KWin's order, the locks last.
    static void tell(wl_client*, wl_resource* resource) {
        for (const std::uint32_t key : {3U, 5U, 4U, 6U, 7U, 0U, 1U}) {
            const bool isHeld = states(resource).m_held.contains(key);
            const auto state =
                isHeld ? ORG_KDE_KWIN_KEYSTATE_STATE_PRESSED : ORG_KDE_KWIN_KEYSTATE_STATE_UNLOCKED;
            wl_resource_post_event(resource, stateChanged, key, static_cast<std::uint32_t>(state));
        }
    }

    static void destroy(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

    static void gone(wl_resource* resource) { std::erase(states(resource).m_listeners, resource); }

    struct Requests {
        decltype(&tell) fetchStates = tell;
        decltype(&destroy) destroyRequest = destroy;
    };

    static void bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static constexpr Requests requests;
        auto* resource = wl_resource_create(
            client, &org_kde_kwin_keystate_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(resource, &requests, data, gone);
        states(resource).m_listeners.push_back(resource);
    }
};

TestKeyStates::TestKeyStates(TestCompositor& compositor, int version) : m_compositor(compositor) {
    m_compositor.run([this, version](wl_display* display) {
        wl_global_create(display, &org_kde_kwin_keystate_interface, version, this, Server::bind);
    });
}

TestKeyStates::~TestKeyStates() {
    m_compositor.run([this](wl_display*) {
        for (auto* listener : m_listeners)
            wl_resource_set_destructor(listener, nullptr);
    });
}

void TestKeyStates::hold(std::set<std::uint32_t> keys) {
    m_compositor.run([&](wl_display*) {
        m_held = std::move(keys);
        for (auto* listener : m_listeners)
            Server::tell(nullptr, listener);
    });
}

std::size_t TestKeyStates::listeners() {
    std::size_t count = 0;
    m_compositor.run([&](wl_display*) { count = m_listeners.size(); });
    return count;
}

} // namespace quorvane
