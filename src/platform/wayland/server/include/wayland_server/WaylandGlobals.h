// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>
#include <wayland-client-core.h>
#include <wayland_server/WaylandSubscription.h>

struct wl_registry;

namespace quorvane {

/// One object that the compositor offers to every program.
struct WaylandGlobal {
    std::uint32_t name = 0; ///< the compositor's number for it
    std::string interface;
    std::uint32_t version = 1; ///< the highest that it offers

    friend bool operator==(const WaylandGlobal&, const WaylandGlobal&) = default;
};

/// What is called for the globals of one interface.
struct WaylandGlobalHandlers {
    std::function<void(const WaylandGlobal&)> came;
    std::function<void(std::uint32_t name)> went = [](std::uint32_t) {
    };
};

/// The registry of a connection: the globals, as they come and go.
class WaylandGlobals {
public:
    /// Fills with the events of the connection, which must outlive it.
    explicit WaylandGlobals(wl_display* display);
    ~WaylandGlobals();

    WaylandGlobals(const WaylandGlobals&) = delete;
    WaylandGlobals& operator=(const WaylandGlobals&) = delete;

    /// In the order in which they came.
    [[nodiscard]] const std::vector<WaylandGlobal>& all() const { return m_all; }

    [[nodiscard]] bool offers(std::string_view interface) const;

    /// Calls `came` at once for each that is there, and later for each that comes. Handlers may
    /// follow others, and drop subscriptions.
    [[nodiscard]] WaylandSubscription follow(std::string interface, WaylandGlobalHandlers handlers);

    /// A proxy for the global, in the version that both sides know, for the caller to destroy.
    template <typename Proxy>
    [[nodiscard]] Proxy*
    bind(const WaylandGlobal& global, const wl_interface& interface, std::uint32_t version) const {
        return static_cast<Proxy*>(bindRaw(global, interface, version));
    }

private:
    struct Follower {
        std::string interface;
        WaylandGlobalHandlers handlers;
    };

    struct Listener;

    [[nodiscard]] void* bindRaw(
        const WaylandGlobal& global, const wl_interface& interface, std::uint32_t version) const;
    void add(WaylandGlobal global);
    void remove(std::uint32_t name);
    [[nodiscard]] std::vector<std::shared_ptr<Follower>> followers(std::string_view interface);

    wl_registry* m_registry;
    std::vector<WaylandGlobal> m_all;
    std::list<std::weak_ptr<Follower>> m_followers;
};

} // namespace quorvane
