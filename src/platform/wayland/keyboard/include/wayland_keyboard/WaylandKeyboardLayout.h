// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyboardLayout.h>

#include <QByteArray>

#include <memory>
#include <wayland_keyboard/Xkb.h>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSubscription.h>

struct wl_keyboard;
struct wl_seat;

namespace quorvane {

/// What the user's keys type, by the keymap that the compositor gives to every program. Which of
/// the keymap's layouts is in use is told to the program with the keyboard alone, and not here: the
/// first one counts.
class WaylandKeyboardLayout final : public KeyboardLayout {
public:
    explicit WaylandKeyboardLayout(std::shared_ptr<WaylandConnection> connection);
    ~WaylandKeyboardLayout() override;

    [[nodiscard]] std::optional<std::u16string> characters(std::uint16_t keyCode) const override;
    [[nodiscard]] std::optional<std::u16string>
    shiftedCharacters(std::uint16_t keyCode) const override;
    void onChanged(std::function<void()> handler) override;

private:
    struct Events;

    void addSeat(const WaylandGlobal& global);
    void dropSeat();
    void dropKeyboard();
    void take(const QByteArray& keymapText);
    [[nodiscard]] std::optional<std::u16string>
    typed(std::uint16_t keyCode, xkb_mod_mask_t held) const;
    void compile() const;

    std::shared_ptr<WaylandConnection> m_connection;
    wl_seat* m_seat = nullptr;
    std::uint32_t m_global = 0;
    wl_keyboard* m_keyboard = nullptr;
    QByteArray m_text;
    mutable XkbState m_state; ///< none until it is asked for: it takes some milliseconds
    std::function<void()> m_changed;
    WaylandSubscription m_following;
    WaylandSubscription m_lost;
};

} // namespace quorvane
