// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>

#include <array>
#include <unistd.h>
#include <utility>
#include <wayland-client-protocol.h>
#include <wayland_keyboard/KeymapText.h>
#include <wayland_keyboard/UsKeymap.h>
#include <wayland_keyboard/WaylandKeyboardLayout.h>

namespace quorvane {

namespace {

constexpr std::size_t maxUnits = 4;

// The first of XKB's real modifiers, in every keymap.
constexpr xkb_mod_mask_t shiftBit = 1;

// From 5 on a seat can be given back; what later ones add is of no use here.
constexpr std::uint32_t knownVersion = 5;

} // namespace

struct WaylandKeyboardLayout::Events {
    static WaylandKeyboardLayout& layout(void* data) {
        return *static_cast<WaylandKeyboardLayout*>(data);
    }

    static void capabilities(void* data, wl_seat* seat, std::uint32_t capabilities) {
        static constexpr wl_keyboard_listener listener = {
            .keymap = keymap,
            .enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {},
            .leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {},
            .key = [](void*,
                      wl_keyboard*,
                      std::uint32_t,
                      std::uint32_t,
                      std::uint32_t,
                      std::uint32_t) {},
            .modifiers = [](void*,
                            wl_keyboard*,
                            std::uint32_t,
                            std::uint32_t,
                            std::uint32_t,
                            std::uint32_t,
                            std::uint32_t) {},
            .repeat_info = [](void*, wl_keyboard*, std::int32_t, std::int32_t) {},
        };
        auto& self = layout(data);
        const bool hasKeyboard = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
        if (!hasKeyboard) {
            self.dropKeyboard();
        } else if (self.m_keyboard == nullptr) {
            self.m_keyboard = wl_seat_get_keyboard(seat);
            wl_keyboard_add_listener(self.m_keyboard, &listener, data);
        }
    }

    static void
    keymap(void* data, wl_keyboard*, std::uint32_t format, std::int32_t file, std::uint32_t size) {
        if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1)
            layout(data).take(keymapTextIn(file, size));
        close(file);
    }
};

WaylandKeyboardLayout::WaylandKeyboardLayout(std::shared_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)) {
    m_following = m_connection->globals().follow(
        wl_seat_interface.name,
        {[this](const WaylandGlobal& global) { addSeat(global); },
         [this](std::uint32_t name) {
             if (m_seat != nullptr && name == m_global)
                 dropSeat();
         }});
    m_lost = m_connection->whenLost([this] { dropSeat(); });
}

WaylandKeyboardLayout::~WaylandKeyboardLayout() {
    dropSeat();
}

std::optional<std::u16string> WaylandKeyboardLayout::characters(std::uint16_t keyCode) const {
    return typed(keyCode, 0);
}

std::optional<std::u16string>
WaylandKeyboardLayout::shiftedCharacters(std::uint16_t keyCode) const {
    return typed(keyCode, shiftBit);
}

std::optional<std::u16string>
WaylandKeyboardLayout::typed(std::uint16_t keyCode, xkb_mod_mask_t held) const {
    compile();
    if (!m_state)
        return std::nullopt;
    const auto scanCode = scanCodeFromKeyCode(keyCode);
    if (!scanCode)
        return std::u16string();
    xkb_state_update_mask(m_state.get(), held, 0, 0, 0, 0, 0);
    std::array<char, 32> text{};
    xkb_state_key_get_utf8(m_state.get(), *scanCode, text.data(), text.size());
    return QString::fromUtf8(text.data()).toStdU16String().substr(0, maxUnits);
}

void WaylandKeyboardLayout::onChanged(std::function<void()> handler) {
    m_changed = std::move(handler);
}

void WaylandKeyboardLayout::addSeat(const WaylandGlobal& global) {
    static constexpr wl_seat_listener listener = {
        .capabilities = Events::capabilities,
        .name = [](void*, wl_seat*, const char*) {},
    };
    if (m_seat != nullptr)
        return;
    m_global = global.name;
    m_seat = m_connection->globals().bind<wl_seat>(global, wl_seat_interface, knownVersion);
    wl_seat_add_listener(m_seat, &listener, this);
}

void WaylandKeyboardLayout::dropSeat() {
    dropKeyboard();
    auto* seat = std::exchange(m_seat, nullptr);
    if (seat == nullptr)
        return;
    if (wl_seat_get_version(seat) >= WL_SEAT_RELEASE_SINCE_VERSION)
        wl_seat_release(seat);
    else
        wl_seat_destroy(seat);
}

void WaylandKeyboardLayout::dropKeyboard() {
    auto* keyboard = std::exchange(m_keyboard, nullptr);
    if (keyboard == nullptr)
        return;
    if (wl_keyboard_get_version(keyboard) >= WL_KEYBOARD_RELEASE_SINCE_VERSION)
        wl_keyboard_release(keyboard);
    else
        wl_keyboard_destroy(keyboard);
}

void WaylandKeyboardLayout::take(const QByteArray& keymapText) {
    // After keys of our own the compositor gives out their keymap until the user presses one.
    if (keymapText.isEmpty() || isOwnKeymap(keymapText) || keymapText == m_text)
        return;
    m_text = keymapText;
    m_state.reset();
    if (m_changed)
        m_changed();
}

void WaylandKeyboardLayout::compile() const {
    if (m_state || m_text.isEmpty())
        return;
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (!context)
        return;
    // A keymap that cannot be read is told by the label.
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    const XkbKeymap keymap(xkb_keymap_new_from_buffer(
        context.get(),
        m_text.constData(),
        static_cast<std::size_t>(m_text.size()),
        XKB_KEYMAP_FORMAT_TEXT_V1,
        XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (keymap)
        m_state.reset(xkb_state_new(keymap.get()));
}

} // namespace quorvane
