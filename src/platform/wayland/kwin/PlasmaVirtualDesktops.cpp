// SPDX-License-Identifier: MIT
#include <plasma-virtual-desktop-client.h>
#include <utility>
#include <wayland_kwin/PlasmaVirtualDesktops.h>

namespace quorvane {

namespace {

constexpr std::uint32_t knownVersion = 1;

} // namespace

struct PlasmaVirtualDesktops::Desktop {
    PlasmaVirtualDesktops& list;
    org_kde_plasma_virtual_desktop* proxy;
    QString id;

    Desktop(PlasmaVirtualDesktops& owner, org_kde_plasma_virtual_desktop* made, QString name)
        : list(owner),
          proxy(made),
          id(std::move(name)) {}

    ~Desktop() { org_kde_plasma_virtual_desktop_destroy(proxy); }

    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
};

struct PlasmaVirtualDesktops::Events {
    using Proxy = org_kde_plasma_virtual_desktop;
    using Manager = org_kde_plasma_virtual_desktop_management;

    static void created(void* data, Manager*, const char* id, std::uint32_t /*position*/) {
        static_cast<PlasmaVirtualDesktops*>(data)->addDesktop(id);
    }

    static void removed(void* data, Manager*, const char* id) {
        static_cast<PlasmaVirtualDesktops*>(data)->drop(QString::fromUtf8(id));
    }

    static void activated(void* data, Proxy*) {
        const auto& desktop = *static_cast<Desktop*>(data);
        desktop.list.setCurrent(desktop.id);
    }

    static const org_kde_plasma_virtual_desktop_listener& listener() {
        static constexpr org_kde_plasma_virtual_desktop_listener listener = {
            .desktop_id = [](void*, Proxy*, const char*) {},
            .name = [](void*, Proxy*, const char*) {},
            .activated = activated,
            .deactivated = [](void*, Proxy*) {},
            .done = [](void*, Proxy*) {},
            .removed = [](void*, Proxy*) {},
        };
        return listener;
    }
};

PlasmaVirtualDesktops::PlasmaVirtualDesktops(std::shared_ptr<WaylandConnection> connection)
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

PlasmaVirtualDesktops::~PlasmaVirtualDesktops() {
    m_changed = {};
    end();
}

void PlasmaVirtualDesktops::add(const WaylandGlobal& global) {
    static constexpr org_kde_plasma_virtual_desktop_management_listener listener = {
        .desktop_created = Events::created,
        .desktop_removed = Events::removed,
        .done = [](void*, Events::Manager*) {},
        .rows = [](void*, Events::Manager*, std::uint32_t) {},
    };
    if (m_manager != nullptr)
        return;
    m_global = global.name;
    m_manager = m_connection->globals().bind<org_kde_plasma_virtual_desktop_management>(
        global, org_kde_plasma_virtual_desktop_management_interface, knownVersion);
    org_kde_plasma_virtual_desktop_management_add_listener(m_manager, &listener, this);
}

void PlasmaVirtualDesktops::addDesktop(const char* id) {
    auto* proxy = org_kde_plasma_virtual_desktop_management_get_virtual_desktop(m_manager, id);
    auto desktop = std::make_unique<Desktop>(*this, proxy, QString::fromUtf8(id));
    org_kde_plasma_virtual_desktop_add_listener(proxy, &Events::listener(), desktop.get());
    m_desktops.push_back(std::move(desktop));
}

void PlasmaVirtualDesktops::drop(const QString& id) {
    std::erase_if(m_desktops, [&id](const auto& desktop) { return desktop->id == id; });
}

void PlasmaVirtualDesktops::end() {
    m_desktops.clear();
    if (auto* manager = std::exchange(m_manager, nullptr))
        org_kde_plasma_virtual_desktop_management_destroy(manager);
    setCurrent({});
}

void PlasmaVirtualDesktops::setCurrent(const QString& id) {
    if (std::exchange(m_current, id) != id && m_changed)
        m_changed();
}

} // namespace quorvane
