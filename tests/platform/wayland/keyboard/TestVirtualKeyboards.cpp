// SPDX-License-Identifier: MIT
#include "TestVirtualKeyboards.h"

#include <unistd.h>
#include <virtual-keyboard-unstable-v1-client.h>
#include <wayland-server-core.h>

namespace quorvane {

/// The requests in the order of their numbers, as the server's side has them.
struct TestVirtualKeyboards::Server {
    static void note(wl_resource* resource, std::string line) {
        static_cast<TestVirtualKeyboards*>(wl_resource_get_user_data(resource))
            ->m_requests.push_back(std::move(line));
    }

    static void
    keymap(wl_client*, wl_resource* resource, std::uint32_t, std::int32_t file, std::uint32_t) {
        close(file);
        note(resource, "keymap");
    }

    static void
    key(wl_client*, wl_resource* resource, std::uint32_t, std::uint32_t key, std::uint32_t state) {
        note(resource, (state != 0 ? "down " : "up ") + std::to_string(key));
    }

    static void modifiers(
        wl_client*,
        wl_resource* resource,
        std::uint32_t held,
        std::uint32_t,
        std::uint32_t,
        std::uint32_t) {
        note(resource, "modifiers " + std::to_string(held));
    }

    static void destroy(wl_client*, wl_resource* resource) {
        note(resource, "destroy");
        wl_resource_destroy(resource);
    }

    struct KeyboardRequests {
        decltype(&keymap) keymapRequest = keymap;
        decltype(&key) keyRequest = key;
        decltype(&modifiers) modifiersRequest = modifiers;
        decltype(&destroy) destroyRequest = destroy;
    };

    static void create(wl_client* client, wl_resource* manager, wl_resource*, std::uint32_t id) {
        static constexpr KeyboardRequests requests;
        auto* keyboard = wl_resource_create(client, &zwp_virtual_keyboard_v1_interface, 1, id);
        wl_resource_set_implementation(
            keyboard, &requests, wl_resource_get_user_data(manager), nullptr);
    }

    struct ManagerRequests {
        decltype(&create) createRequest = create;
    };

    static void bind(wl_client* client, void* data, std::uint32_t, std::uint32_t id) {
        static constexpr ManagerRequests requests;
        auto* manager =
            wl_resource_create(client, &zwp_virtual_keyboard_manager_v1_interface, 1, id);
        wl_resource_set_implementation(manager, &requests, data, nullptr);
    }
};

TestVirtualKeyboards::TestVirtualKeyboards(TestCompositor& compositor) : m_compositor(compositor) {
    m_compositor.run([this](wl_display* display) {
        m_global = wl_global_create(
            display, &zwp_virtual_keyboard_manager_v1_interface, 1, this, Server::bind);
    });
}

void TestVirtualKeyboards::withdraw() {
    m_compositor.run([this](wl_display*) { wl_global_destroy(m_global); });
}

std::vector<std::string> TestVirtualKeyboards::requests() {
    std::vector<std::string> copy;
    m_compositor.run([&](wl_display*) { copy = m_requests; });
    return copy;
}

} // namespace quorvane
