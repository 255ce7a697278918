// SPDX-License-Identifier: MIT
#include "TestSeat.h"

#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <wayland-server-core.h>
#include <wayland-server-protocol.h>

namespace quorvane {

namespace {

void release(wl_client* /*client*/, wl_resource* resource) {
    wl_resource_destroy(resource);
}

} // namespace

TestSeat::TestSeat(TestCompositor& compositor, QByteArray keymap)
    : m_compositor(compositor),
      m_keymap(std::move(keymap)) {
    m_compositor.run([this](wl_display* display) {
        wl_global_create(display, &wl_seat_interface, 5, this, bind);
    });
}

TestSeat::~TestSeat() {
    m_compositor.stop();
}

void TestSeat::setKeymap(const QByteArray& text, std::uint32_t size) {
    m_compositor.run([&](wl_display*) {
        for (auto* keyboard : m_keyboards)
            sendKeymap(keyboard, text, size);
    });
}

void TestSeat::bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
    static constexpr struct wl_seat_interface requests { nullptr, getKeyboard, nullptr, release };

    auto* seat = wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
    wl_resource_set_implementation(seat, &requests, data, nullptr);
    wl_seat_send_capabilities(seat, WL_SEAT_CAPABILITY_KEYBOARD);
}

void TestSeat::getKeyboard(wl_client* client, wl_resource* seat, std::uint32_t id) {
    static constexpr struct wl_keyboard_interface requests { release };

    auto& self = *static_cast<TestSeat*>(wl_resource_get_user_data(seat));
    auto* keyboard =
        wl_resource_create(client, &wl_keyboard_interface, wl_resource_get_version(seat), id);
    wl_resource_set_implementation(keyboard, &requests, &self, [](wl_resource* gone) {
        std::erase(static_cast<TestSeat*>(wl_resource_get_user_data(gone))->m_keyboards, gone);
    });
    self.m_keyboards.push_back(keyboard);
    if (!self.m_keymap.isEmpty())
        sendKeymap(keyboard, self.m_keymap, static_cast<std::uint32_t>(self.m_keymap.size()));
}

void TestSeat::sendKeymap(wl_resource* keyboard, const QByteArray& text, std::uint32_t size) {
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    if (write(file, text.constData(), static_cast<std::size_t>(text.size())) == text.size())
        wl_keyboard_send_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, size);
    close(file);
}

} // namespace quorvane
