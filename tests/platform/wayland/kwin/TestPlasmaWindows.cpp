// SPDX-License-Identifier: MIT
#include "TestPlasmaWindows.h"

#include <array>
#include <plasma-virtual-desktop-client.h>
#include <plasma-window-management-client.h>
#include <wayland-server-core.h>

namespace quorvane {

namespace {

using Unused = void (*)();

// The numbers of the events in their protocols.
constexpr std::uint32_t windowWithUuid = 4;
constexpr std::uint32_t appIdChanged = 1;
constexpr std::uint32_t stateChanged = 2;
constexpr std::uint32_t unmapped = 5;
constexpr std::uint32_t initialState = 6;
constexpr std::uint32_t pidChanged = 10;
constexpr std::uint32_t desktopEntered = 11;
constexpr std::uint32_t desktopCreated = 0;
constexpr std::uint32_t desktopActivated = 2;

constexpr int version = 16;

} // namespace

struct TestPlasmaWindows::Server {
    static TestPlasmaWindows& list(wl_resource* resource) {
        return *static_cast<TestPlasmaWindows*>(wl_resource_get_user_data(resource));
    }

    static void destroy(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

    static void
    setState(wl_client*, wl_resource* resource, std::uint32_t flags, std::uint32_t state) {
        for (const auto& [uuid, window] : list(resource).m_windows) {
            if (window.resource == resource && (flags & state & active) != 0)
                list(resource).m_activated.push_back(uuid);
        }
    }

    struct WindowRequests {
        decltype(&setState) setStateRequest = setState;
        std::array<Unused, 6> between{};
        decltype(&destroy) destroyRequest = destroy;
        std::array<Unused, 7> after{};
    };

    static void
    getWindow(wl_client* client, wl_resource* manager, std::uint32_t id, const char* uuid) {
        static constexpr WindowRequests requests;
        auto& window = list(manager).m_windows.at(uuid);
        window.resource = wl_resource_create(client, &org_kde_plasma_window_interface, version, id);
        wl_resource_set_implementation(window.resource, &requests, &list(manager), nullptr);
        wl_resource_post_event(window.resource, appIdChanged, window.appId.c_str());
        wl_resource_post_event(window.resource, stateChanged, window.state);
        wl_resource_post_event(window.resource, pidChanged, window.pid);
        wl_resource_post_event(window.resource, desktopEntered, window.desktop.c_str());
        wl_resource_post_event(window.resource, initialState);
    }

    struct ManagerRequests {
        std::array<Unused, 2> before{};
        decltype(&getWindow) getWindowRequest = getWindow;
    };

    static void bindWindows(wl_client* client, void* data, std::uint32_t, std::uint32_t id) {
        static constexpr ManagerRequests requests;
        auto* manager =
            wl_resource_create(client, &org_kde_plasma_window_management_interface, version, id);
        wl_resource_set_implementation(manager, &requests, data, nullptr);
        std::uint32_t number = 0;
        for (const auto& [uuid, window] : list(manager).m_windows)
            wl_resource_post_event(manager, windowWithUuid, ++number, uuid.c_str());
    }

    static void
    getDesktop(wl_client* client, wl_resource* manager, std::uint32_t id, const char* name) {
        static constexpr std::array<Unused, 1> requests{};
        auto*& desktop = list(manager).m_desktops.at(name);
        desktop = wl_resource_create(client, &org_kde_plasma_virtual_desktop_interface, 1, id);
        wl_resource_set_implementation(desktop, &requests, &list(manager), nullptr);
        if (std::string(name) == "1")
            wl_resource_post_event(desktop, desktopActivated);
    }

    struct DesktopRequests {
        decltype(&getDesktop) getDesktopRequest = getDesktop;
        std::array<Unused, 2> after{};
    };

    static void bindDesktops(wl_client* client, void* data, std::uint32_t, std::uint32_t id) {
        static constexpr DesktopRequests requests;
        auto* manager =
            wl_resource_create(client, &org_kde_plasma_virtual_desktop_management_interface, 1, id);
        wl_resource_set_implementation(manager, &requests, data, nullptr);
        std::uint32_t position = 0;
        for (const auto& [name, desktop] : list(manager).m_desktops)
            wl_resource_post_event(manager, desktopCreated, name.c_str(), position++);
    }
};

TestPlasmaWindows::TestPlasmaWindows(TestCompositor& compositor) : m_compositor(compositor) {
    m_compositor.run([this](wl_display* display) {
        wl_global_create(
            display,
            &org_kde_plasma_window_management_interface,
            version,
            this,
            Server::bindWindows);
        wl_global_create(
            display,
            &org_kde_plasma_virtual_desktop_management_interface,
            1,
            this,
            Server::bindDesktops);
    });
}

void TestPlasmaWindows::add(const std::string& uuid, const Window& window) {
    m_compositor.run([&](wl_display*) { m_windows[uuid] = window; });
}

void TestPlasmaWindows::setState(const std::string& uuid, std::uint32_t state) {
    m_compositor.run([&](wl_display*) {
        wl_resource_post_event(m_windows.at(uuid).resource, stateChanged, state);
    });
}

void TestPlasmaWindows::close(const std::string& uuid) {
    m_compositor.run(
        [&](wl_display*) { wl_resource_post_event(m_windows.at(uuid).resource, unmapped); });
}

void TestPlasmaWindows::showDesktop(const std::string& id) {
    m_compositor.run(
        [&](wl_display*) { wl_resource_post_event(m_desktops.at(id), desktopActivated); });
}

std::vector<std::string> TestPlasmaWindows::activated() {
    std::vector<std::string> copy;
    m_compositor.run([&](wl_display*) { copy = m_activated; });
    return copy;
}

} // namespace quorvane
