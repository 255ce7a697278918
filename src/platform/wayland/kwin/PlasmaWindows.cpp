// SPDX-License-Identifier: MIT
#include <algorithm>
#include <plasma-window-management-client.h>
#include <utility>
#include <wayland_kwin/PlasmaWindows.h>

namespace quorvane {

namespace {

constexpr std::uint32_t knownVersion = 16;

} // namespace

struct PlasmaWindows::Handle {
    PlasmaWindows& list;
    org_kde_plasma_window* proxy;
    PlasmaWindow window = {};
    bool isWhole = false; ///< all that it began with has been told

    Handle(PlasmaWindows& owner, org_kde_plasma_window* made) : list(owner), proxy(made) {}

    ~Handle() { org_kde_plasma_window_destroy(proxy); }

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
};

struct PlasmaWindows::Events {
    using Proxy = org_kde_plasma_window;

    static Handle& handle(void* data) { return *static_cast<Handle*>(data); }

    /// Changes one thing of a window, and tells it unless the window is just beginning.
    template <typename Value>
    static void change(void* data, Value PlasmaWindow::*member, Value value) {
        auto& changed = handle(data);
        changed.window.*member = std::move(value);
        if (changed.isWhole)
            changed.list.tellChanged();
    }

    static void appId(void* data, Proxy*, const char* name) {
        change(data, &PlasmaWindow::appId, QString::fromUtf8(name));
    }

    static void resourceName(void* data, Proxy*, const char* name) {
        change(data, &PlasmaWindow::resourceName, QString::fromUtf8(name));
    }

    static void state(void* data, Proxy*, std::uint32_t flags) {
        const auto has = [flags](std::uint32_t flag) {
            return (flags & flag) != 0;
        };
        auto& window = handle(data).window;
        window.isMinimised = has(ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_MINIMIZED);
        window.isOnAllDesktops = has(ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ON_ALL_DESKTOPS);
        change(data, &PlasmaWindow::isActive, has(ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE));
    }

    static void unmapped(void* data, Proxy*) { handle(data).list.drop(handle(data)); }

    static void initialState(void* data, Proxy*) {
        handle(data).isWhole = true;
        handle(data).list.tellChanged();
    }

    static void parent(void* data, Proxy*, Proxy* parent) {
        change(data, &PlasmaWindow::parent, handle(data).list.idOf(parent));
    }

    static void geometry(
        void* data,
        Proxy*,
        std::int32_t x,
        std::int32_t y,
        std::uint32_t width,
        std::uint32_t height) {
        const QRect frame(x, y, static_cast<int>(width), static_cast<int>(height));
        change(data, &PlasmaWindow::frame, frame);
    }

    static void pid(void* data, Proxy*, std::uint32_t pid) {
        change(data, &PlasmaWindow::pid, pid);
    }

    static void desktopEntered(void* data, Proxy*, const char* id) {
        auto desktops = handle(data).window.desktops;
        desktops.append(QString::fromUtf8(id));
        change(data, &PlasmaWindow::desktops, desktops);
    }

    static void desktopLeft(void* data, Proxy*, const char* id) {
        auto desktops = handle(data).window.desktops;
        desktops.removeAll(QString::fromUtf8(id));
        change(data, &PlasmaWindow::desktops, desktops);
    }

    static const org_kde_plasma_window_listener& listener() {
        static constexpr auto listener = [] {
            // Later releases of the protocol have more events; none of them comes at our version.
            org_kde_plasma_window_listener known{};
            known.title_changed = [](void*, Proxy*, const char*) {
            };
            known.app_id_changed = appId;
            known.state_changed = state;
            known.virtual_desktop_changed = [](void*, Proxy*, std::int32_t) {
            };
            known.themed_icon_name_changed = [](void*, Proxy*, const char*) {
            };
            known.unmapped = unmapped;
            known.initial_state = initialState;
            known.parent_window = parent;
            known.geometry = geometry;
            known.icon_changed = [](void*, Proxy*) {
            };
            known.pid_changed = pid;
            known.virtual_desktop_entered = desktopEntered;
            known.virtual_desktop_left = desktopLeft;
            known.application_menu = [](void*, Proxy*, const char*, const char*) {
            };
            known.activity_entered = [](void*, Proxy*, const char*) {
            };
            known.activity_left = [](void*, Proxy*, const char*) {
            };
            known.resource_name_changed = resourceName;
            return known;
        }();
        return listener;
    }

    using Manager = org_kde_plasma_window_management;

    static void window(void* data, Manager*, std::uint32_t /*number*/, const char* uuid) {
        static_cast<PlasmaWindows*>(data)->addWindow(uuid);
    }
};

PlasmaWindows::PlasmaWindows(std::shared_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)) {
    m_following = m_connection->globals().follow(
        interfaceName,
        {[this](const WaylandGlobal& global) { add(global); },
         [this](std::uint32_t name) {
             if (m_manager != nullptr && name == m_global)
                 end();
         }});
    m_lost = m_connection->whenLost([this] { end(); });
}

PlasmaWindows::~PlasmaWindows() {
    m_changed = {};
    end();
}

const PlasmaWindow* PlasmaWindows::find(std::uint64_t id) const {
    const auto found = std::ranges::find_if(
        m_handles, [id](const auto& handle) { return handle->window.id == id; });
    return found == m_handles.end() ? nullptr : &(*found)->window;
}

const PlasmaWindow* PlasmaWindows::active() const {
    const auto found =
        std::ranges::find_if(m_handles, [](const auto& handle) { return handle->window.isActive; });
    return found == m_handles.end() ? nullptr : &(*found)->window;
}

QStringList PlasmaWindows::activeNames() const {
    const auto* window = active();
    return window == nullptr ? QStringList() : QStringList{window->appId, window->resourceName};
}

bool PlasmaWindows::activate(std::uint64_t id) {
    const auto found = std::ranges::find_if(
        m_handles, [id](const auto& handle) { return handle->window.id == id; });
    if (found == m_handles.end())
        return false;
    constexpr auto active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
    org_kde_plasma_window_set_state((*found)->proxy, active, active);
    m_connection->flush();
    return true;
}

void PlasmaWindows::add(const WaylandGlobal& global) {
    static constexpr auto listener = [] {
        org_kde_plasma_window_management_listener known{};
        known.show_desktop_changed = [](void*, Events::Manager*, std::uint32_t) {
        };
        known.window = [](void*, Events::Manager*, std::uint32_t) {
        };
        known.stacking_order_changed = [](void*, Events::Manager*, wl_array*) {
        };
        known.stacking_order_uuid_changed = [](void*, Events::Manager*, const char*) {
        };
        known.window_with_uuid = Events::window;
        return known;
    }();
    if (m_manager != nullptr || global.version < firstVersion)
        return;
    m_global = global.name;
    m_manager = m_connection->globals().bind<org_kde_plasma_window_management>(
        global, org_kde_plasma_window_management_interface, knownVersion);
    org_kde_plasma_window_management_add_listener(m_manager, &listener, this);
}

void PlasmaWindows::addWindow(const char* uuid) {
    auto* proxy = org_kde_plasma_window_management_get_window_by_uuid(m_manager, uuid);
    auto handle = std::make_unique<Handle>(*this, proxy);
    handle->window.id = ++m_lastId;
    org_kde_plasma_window_add_listener(proxy, &Events::listener(), handle.get());
    m_handles.push_back(std::move(handle));
}

void PlasmaWindows::end() {
    m_handles.clear();
    if (auto* manager = std::exchange(m_manager, nullptr))
        org_kde_plasma_window_management_destroy(manager);
    tellChanged();
}

void PlasmaWindows::drop(const Handle& handle) {
    std::erase_if(m_handles, [&handle](const auto& each) { return each.get() == &handle; });
    tellChanged();
}

std::uint64_t PlasmaWindows::idOf(const void* proxy) const {
    const auto found = std::ranges::find_if(
        m_handles, [proxy](const auto& handle) { return handle->proxy == proxy; });
    return found == m_handles.end() ? 0 : (*found)->window.id;
}

void PlasmaWindows::tellChanged() const {
    if (m_changed)
        m_changed();
}

} // namespace quorvane
