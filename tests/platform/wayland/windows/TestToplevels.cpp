// SPDX-License-Identifier: MIT
#include "TestToplevels.h"

#include <algorithm>
#include <array>
#include <wayland-server-core.h>
#include <wlr-foreign-toplevel-management-unstable-v1-client.h>

namespace quorvane {

namespace {

// Events by their numbers in the protocol.
constexpr std::uint32_t managerToplevel = 0;
constexpr std::uint32_t handleAppId = 1;
constexpr std::uint32_t handleState = 4;
constexpr std::uint32_t handleDone = 5;
constexpr std::uint32_t handleClosed = 6;
constexpr std::uint32_t handleParent = 7;

constexpr int version = 3;

} // namespace

struct TestToplevels::Server {
    static void nothing(wl_client*, wl_resource*) {}

    static void activate(wl_client*, wl_resource* window, wl_resource*) {
        auto& list = *static_cast<TestToplevels*>(wl_resource_get_user_data(window));
        const auto found = std::ranges::find(list.m_windows, window);
        list.m_activations.push_back(static_cast<std::size_t>(found - list.m_windows.begin()));
    }

    static void destroy(wl_client*, wl_resource* window) { wl_resource_destroy(window); }

    struct HandleRequests {
        // Maximised and minimised, each with its end.
        std::array<decltype(&nothing), 4> states{nothing, nothing, nothing, nothing};
        decltype(&activate) activateRequest = activate;
        decltype(&nothing) close = nothing;
        decltype(&nothing) setRectangle = nothing;
        decltype(&destroy) destroyRequest = destroy;
        std::array<decltype(&nothing), 2> fullscreen{nothing, nothing};
    };

    struct ManagerRequests {
        decltype(&nothing) stop = nothing;
    };

    static void bind(wl_client* client, void* data, std::uint32_t, std::uint32_t id) {
        static constexpr ManagerRequests requests;
        auto& list = *static_cast<TestToplevels*>(data);
        list.m_manager =
            wl_resource_create(client, &zwlr_foreign_toplevel_manager_v1_interface, version, id);
        wl_resource_set_implementation(list.m_manager, &requests, data, nullptr);
    }
};

TestToplevels::TestToplevels(TestCompositor& compositor) : m_compositor(compositor) {
    m_compositor.run([this](wl_display* display) {
        m_global = wl_global_create(
            display, &zwlr_foreign_toplevel_manager_v1_interface, version, this, Server::bind);
    });
}

std::size_t TestToplevels::add(const std::string& appId, std::vector<std::uint32_t> states) {
    m_compositor.run([&](wl_display*) {
        static constexpr Server::HandleRequests requests;
        auto* window = wl_resource_create(
            wl_resource_get_client(m_manager),
            &zwlr_foreign_toplevel_handle_v1_interface,
            version,
            0);
        wl_resource_set_implementation(window, &requests, this, nullptr);
        wl_resource_post_event(m_manager, managerToplevel, window);
        wl_resource_post_event(window, handleAppId, appId.c_str());
        sendStates(window, std::move(states));
        m_windows.push_back(window);
    });
    return m_windows.size() - 1;
}

void TestToplevels::setStates(std::size_t window, std::vector<std::uint32_t> states) {
    m_compositor.run([&](wl_display*) { sendStates(m_windows[window], std::move(states)); });
}

void TestToplevels::setParent(std::size_t window, std::size_t parent) {
    m_compositor.run([&](wl_display*) {
        wl_resource_post_event(m_windows[window], handleParent, m_windows[parent]);
        wl_resource_post_event(m_windows[window], handleDone);
    });
}

void TestToplevels::close(std::size_t window) {
    m_compositor.run([&](wl_display*) { wl_resource_post_event(m_windows[window], handleClosed); });
}

void TestToplevels::withdraw() {
    m_compositor.run([this](wl_display*) { wl_global_destroy(m_global); });
}

std::vector<std::size_t> TestToplevels::activations() {
    std::vector<std::size_t> copy;
    m_compositor.run([&](wl_display*) { copy = m_activations; });
    return copy;
}

void TestToplevels::sendStates(wl_resource* window, std::vector<std::uint32_t> states) {
    wl_array array{
        .size = states.size() * sizeof(std::uint32_t), .alloc = 0, .data = states.data()};
    wl_resource_post_event(window, handleState, &array);
    wl_resource_post_event(window, handleDone);
}

} // namespace quorvane
