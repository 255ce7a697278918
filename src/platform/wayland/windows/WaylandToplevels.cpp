// SPDX-License-Identifier: MIT
#include <algorithm>
#include <span>
#include <utility>
#include <wayland_windows/WaylandToplevels.h>
#include <wlr-foreign-toplevel-management-unstable-v1-client.h>

namespace quorvane {

namespace {

// From 3 on a dialog names its window.
constexpr std::uint32_t knownVersion = 3;

} // namespace

/// One window: what is known, and what follows once the compositor has told all of a change.
struct WaylandToplevels::Handle {
    WaylandToplevels& list;
    zwlr_foreign_toplevel_handle_v1* proxy;
    WaylandToplevel known = {};
    WaylandToplevel next = {};

    Handle(WaylandToplevels& owner, zwlr_foreign_toplevel_handle_v1* made)
        : list(owner),
          proxy(made) {}

    ~Handle() { zwlr_foreign_toplevel_handle_v1_destroy(proxy); }

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
};

struct WaylandToplevels::Events {
    using Proxy = zwlr_foreign_toplevel_handle_v1;

    static Handle& handle(void* data) { return *static_cast<Handle*>(data); }

    static void appId(void* data, Proxy*, const char* name) {
        handle(data).next.appId = QString::fromUtf8(name);
    }

    static void state(void* data, Proxy*, wl_array* array) {
        const std::span states(
            static_cast<const std::uint32_t*>(array->data), array->size / sizeof(std::uint32_t));
        auto& next = handle(data).next;
        next.isActivated =
            std::ranges::count(states, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) > 0;
        next.isMinimised =
            std::ranges::count(states, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MINIMIZED) > 0;
    }

    static void parent(void* data, Proxy*, Proxy* parent) {
        handle(data).next.parent = handle(data).list.idOf(parent);
    }

    static void done(void* data, Proxy*) {
        auto& changed = handle(data);
        if (std::exchange(changed.known, changed.next) != changed.next)
            changed.list.tellChanged();
    }

    static void closed(void* data, Proxy*) { handle(data).list.dropHandle(handle(data)); }

    static void
    toplevel(void* data, zwlr_foreign_toplevel_manager_v1*, zwlr_foreign_toplevel_handle_v1* made) {
        static constexpr zwlr_foreign_toplevel_handle_v1_listener listener = {
            .title = [](void*, Proxy*, const char*) {},
            .app_id = appId,
            .output_enter = [](void*, Proxy*, wl_output*) {},
            .output_leave = [](void*, Proxy*, wl_output*) {},
            .state = state,
            .done = done,
            .closed = closed,
            .parent = parent,
        };
        auto& list = *static_cast<WaylandToplevels*>(data);
        auto window = std::make_unique<Handle>(list, made);
        window->known.id = window->next.id = ++list.m_lastId;
        zwlr_foreign_toplevel_handle_v1_add_listener(made, &listener, window.get());
        list.m_handles.push_back(std::move(window));
    }

    static void finished(void* data, zwlr_foreign_toplevel_manager_v1*) {
        static_cast<WaylandToplevels*>(data)->end(true);
    }
};

WaylandToplevels::WaylandToplevels(
    std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandSeats> seats)
    : m_connection(std::move(connection)),
      m_seats(std::move(seats)) {
    m_following = m_connection->globals().follow(
        interfaceName,
        {[this](const WaylandGlobal& global) { add(global); },
         [this](std::uint32_t name) {
             if (m_manager != nullptr && name == m_global)
                 end(false);
         }});
    m_lost = m_connection->whenLost([this] { end(false); });
}

WaylandToplevels::~WaylandToplevels() {
    m_changed = {};
    end(false);
}

bool WaylandToplevels::isListed() const {
    return m_manager != nullptr;
}

const WaylandToplevel* WaylandToplevels::find(std::uint64_t id) const {
    const auto found = std::ranges::find_if(
        m_handles, [id](const auto& handle) { return handle->known.id == id; });
    return found == m_handles.end() ? nullptr : &(*found)->known;
}

const WaylandToplevel* WaylandToplevels::activated() const {
    const auto found = std::ranges::find_if(
        m_handles, [](const auto& handle) { return handle->known.isActivated; });
    return found == m_handles.end() ? nullptr : &(*found)->known;
}

QStringList WaylandToplevels::activatedNames() const {
    const auto* window = activated();
    return window == nullptr ? QStringList() : QStringList{window->appId};
}

bool WaylandToplevels::activate(std::uint64_t id) {
    const auto found = std::ranges::find_if(
        m_handles, [id](const auto& handle) { return handle->known.id == id; });
    auto* seat = m_seats->first();
    if (found == m_handles.end() || seat == nullptr)
        return false;
    zwlr_foreign_toplevel_handle_v1_activate((*found)->proxy, seat);
    m_connection->flush();
    return true;
}

void WaylandToplevels::add(const WaylandGlobal& global) {
    static constexpr zwlr_foreign_toplevel_manager_v1_listener listener = {
        .toplevel = Events::toplevel,
        .finished = Events::finished,
    };
    if (m_manager != nullptr)
        return;
    m_global = global.name;
    m_manager = m_connection->globals().bind<zwlr_foreign_toplevel_manager_v1>(
        global, zwlr_foreign_toplevel_manager_v1_interface, knownVersion);
    zwlr_foreign_toplevel_manager_v1_add_listener(m_manager, &listener, this);
}

void WaylandToplevels::end(bool isFinished) {
    m_handles.clear();
    if (auto* manager = std::exchange(m_manager, nullptr)) {
        // The compositor destroys it with its last event; until then it would go on telling.
        if (!isFinished)
            zwlr_foreign_toplevel_manager_v1_stop(manager);
        zwlr_foreign_toplevel_manager_v1_destroy(manager);
    }
    tellChanged();
}

void WaylandToplevels::dropHandle(const Handle& handle) {
    std::erase_if(m_handles, [&handle](const auto& each) { return each.get() == &handle; });
    tellChanged();
}

std::uint64_t WaylandToplevels::idOf(const void* proxy) const {
    const auto found = std::ranges::find_if(
        m_handles, [proxy](const auto& handle) { return handle->proxy == proxy; });
    return found == m_handles.end() ? 0 : (*found)->known.id;
}

void WaylandToplevels::tellChanged() const {
    if (m_changed)
        m_changed();
}

} // namespace quorvane
