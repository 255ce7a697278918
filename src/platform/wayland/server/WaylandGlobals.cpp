// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>
#include <wayland-client-protocol.h>
#include <wayland_server/WaylandGlobals.h>

namespace quorvane {

struct WaylandGlobals::Listener {
    static void came(
        void* data,
        wl_registry* /*registry*/,
        std::uint32_t name,
        const char* interface,
        std::uint32_t version) {
        static_cast<WaylandGlobals*>(data)->add({name, interface, version});
    }

    static void went(void* data, wl_registry* /*registry*/, std::uint32_t name) {
        static_cast<WaylandGlobals*>(data)->remove(name);
    }

    static constexpr wl_registry_listener events{came, went};
};

WaylandGlobals::WaylandGlobals(wl_display* display) : m_registry(wl_display_get_registry(display)) {
    wl_registry_add_listener(m_registry, &Listener::events, this);
}

WaylandGlobals::~WaylandGlobals() {
    wl_registry_destroy(m_registry);
}

bool WaylandGlobals::offers(std::string_view interface) const {
    return std::ranges::find(m_all, interface, &WaylandGlobal::interface) != m_all.end();
}

WaylandSubscription WaylandGlobals::follow(std::string interface, WaylandGlobalHandlers handlers) {
    auto follower = std::make_shared<Follower>(Follower{std::move(interface), std::move(handlers)});
    m_followers.push_back(follower);
    const auto known = m_all;
    for (const auto& global : known) {
        if (global.interface == follower->interface)
            follower->handlers.came(global);
    }
    return WaylandSubscription(std::move(follower));
}

void* WaylandGlobals::bindRaw(
    const WaylandGlobal& global, const wl_interface& interface, std::uint32_t version) const {
    return wl_registry_bind(m_registry, global.name, &interface, std::min(global.version, version));
}

void WaylandGlobals::add(WaylandGlobal global) {
    m_all.push_back(global);
    for (const auto& follower : followers(global.interface))
        follower->handlers.came(global);
}

void WaylandGlobals::remove(std::uint32_t name) {
    const auto gone = std::ranges::find(m_all, name, &WaylandGlobal::name);
    if (gone == m_all.end())
        return;
    const auto interface = gone->interface;
    m_all.erase(gone);
    for (const auto& follower : followers(interface))
        follower->handlers.went(name);
}

// A handler may come and go while the others are called.
std::vector<std::shared_ptr<WaylandGlobals::Follower>>
WaylandGlobals::followers(std::string_view interface) {
    m_followers.remove_if([](const auto& weak) { return weak.expired(); });
    std::vector<std::shared_ptr<Follower>> found;
    for (const auto& weak : m_followers) {
        auto follower = weak.lock();
        if (follower && follower->interface == interface)
            found.push_back(std::move(follower));
    }
    return found;
}

} // namespace quorvane
