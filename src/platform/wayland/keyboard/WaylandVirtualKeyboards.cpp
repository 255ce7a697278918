// SPDX-License-Identifier: MIT
#include <utility>
#include <virtual-keyboard-unstable-v1-client.h>
#include <wayland_keyboard/UsKeymap.h>
#include <wayland_keyboard/WaylandVirtualKeyboards.h>

namespace quorvane {

WaylandVirtualKeyboards::WaylandVirtualKeyboards(
    std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandSeats> seats)
    : m_connection(std::move(connection)),
      m_seats(std::move(seats)) {
    m_following = m_connection->globals().follow(
        interfaceName,
        {[this](const WaylandGlobal& global) { add(global); },
         [this](std::uint32_t name) {
             if (m_manager != nullptr && name == m_global)
                 end();
         }});
    m_seatChanges = m_seats->whenChanged([this] {
        m_keyboard.reset();
        tellChanged();
    });
    m_lost = m_connection->whenLost([this] { end(); });
}

WaylandVirtualKeyboards::~WaylandVirtualKeyboards() {
    m_changed = {};
    end();
}

bool WaylandVirtualKeyboards::isAvailable() const {
    return m_manager != nullptr && m_seats->first() != nullptr;
}

WaylandVirtualKeyboard* WaylandVirtualKeyboards::keyboard() {
    if (!isAvailable())
        return nullptr;
    if (m_keymap.isEmpty())
        m_keymap = makeOwnKeymap();
    // Keys without a keymap would end the connection.
    if (!m_keyboard && !m_keymap.isEmpty()) {
        auto* proxy =
            zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(m_manager, m_seats->first());
        m_keyboard = std::make_unique<WaylandVirtualKeyboard>(m_connection, proxy, m_keymap);
    }
    return m_keyboard.get();
}

void WaylandVirtualKeyboards::add(const WaylandGlobal& global) {
    if (m_manager != nullptr)
        return;
    m_global = global.name;
    m_manager = m_connection->globals().bind<zwp_virtual_keyboard_manager_v1>(
        global, zwp_virtual_keyboard_manager_v1_interface, 1);
    tellChanged();
}

void WaylandVirtualKeyboards::end() {
    m_keyboard.reset();
    if (auto* manager = std::exchange(m_manager, nullptr))
        zwp_virtual_keyboard_manager_v1_destroy(manager);
    tellChanged();
}

void WaylandVirtualKeyboards::tellChanged() const {
    if (m_changed)
        m_changed();
}

} // namespace quorvane
