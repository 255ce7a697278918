// SPDX-License-Identifier: MIT
#include "TestFakeInput.h"

#include <array>
#include <fake-input-client.h>
#include <wayland-server-core.h>

namespace quorvane {

/// The requests in the order of their numbers, as the server's side has them.
struct TestFakeInput::Server {
    static void note(wl_resource* resource, std::string line) {
        static_cast<TestFakeInput*>(wl_resource_get_user_data(resource))
            ->m_requests.push_back(std::move(line));
    }

    static void authenticate(wl_client*, wl_resource* resource, const char* name, const char*) {
        note(resource, std::string("authenticate ") + name);
    }

    static void key(wl_client*, wl_resource* resource, std::uint32_t key, std::uint32_t state) {
        note(resource, (state != 0 ? "down " : "up ") + std::to_string(key));
    }

    struct Requests {
        decltype(&authenticate) authenticateRequest = authenticate;
        std::array<void (*)(), 9> pointerAndTouch{};
        decltype(&key) keyRequest = key;
    };

    static void bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        static constexpr Requests requests;
        auto* input = wl_resource_create(
            client, &org_kde_kwin_fake_input_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(input, &requests, data, nullptr);
    }
};

TestFakeInput::TestFakeInput(TestCompositor& compositor) : m_compositor(compositor) {
    m_compositor.run([this](wl_display* display) {
        m_global =
            wl_global_create(display, &org_kde_kwin_fake_input_interface, 4, this, Server::bind);
    });
}

void TestFakeInput::withdraw() {
    m_compositor.run([this](wl_display*) { wl_global_destroy(m_global); });
}

std::vector<std::string> TestFakeInput::requests() {
    std::vector<std::string> copy;
    m_compositor.run([&](wl_display*) { copy = m_requests; });
    return copy;
}

} // namespace quorvane
