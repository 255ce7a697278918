// SPDX-License-Identifier: MIT
#include <fake-input-client.h>
#include <ranges>
#include <utility>
#include <wayland-client-protocol.h>
#include <wayland_kwin/KwinFakeInput.h>

namespace quorvane {

KwinFakeInput::KwinFakeInput(std::shared_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)) {
    m_following = m_connection->globals().follow(
        interfaceName,
        {[this](const WaylandGlobal& global) { add(global); },
         [this](std::uint32_t name) {
             if (m_input != nullptr && name == m_global)
                 end();
         }});
    m_lost = m_connection->whenLost([this] { end(); });
}

KwinFakeInput::~KwinFakeInput() {
    m_changed = {};
    end();
}

void KwinFakeInput::tap(
    const std::vector<std::uint32_t>& inTheWay, const std::vector<std::uint32_t>& keys) {
    if (m_input == nullptr)
        return;
    const auto send = [this](std::uint32_t key, wl_keyboard_key_state state) {
        org_kde_kwin_fake_input_keyboard_key(m_input, key, state);
    };
    for (const auto key : inTheWay)
        send(key, WL_KEYBOARD_KEY_STATE_RELEASED);
    for (const auto key : keys)
        send(key, WL_KEYBOARD_KEY_STATE_PRESSED);
    for (const auto key : std::views::reverse(keys))
        send(key, WL_KEYBOARD_KEY_STATE_RELEASED);
    m_connection->flush();
}

void KwinFakeInput::add(const WaylandGlobal& global) {
    if (m_input != nullptr || global.version < firstVersion)
        return;
    m_global = global.name;
    m_input = m_connection->globals().bind<org_kde_kwin_fake_input>(
        global, org_kde_kwin_fake_input_interface, firstVersion);
    // Names for a dialog that no version of KWin shows.
    org_kde_kwin_fake_input_authenticate(m_input, "Quorvane", "");
    tellChanged();
}

void KwinFakeInput::end() {
    // This version of the interface has no request by which the object is given back.
    if (auto* input = std::exchange(m_input, nullptr))
        org_kde_kwin_fake_input_destroy(input);
    tellChanged();
}

void KwinFakeInput::tellChanged() const {
    if (m_changed)
        m_changed();
}

} // namespace quorvane
