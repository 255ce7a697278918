// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/XcbReply.h>

#include <QByteArray>
#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvane {

/// A key event that the window was sent.
struct ReceivedKey {
    enum class Kind { Press, Release };

    Kind kind = Kind::Press;
    xcb_keycode_t keycode = 0;
    std::uint16_t state = 0; ///< without the group

    friend bool operator==(const ReceivedKey&, const ReceivedKey&) = default;
};

/// A window of another program: a connection of its own, which notes the keys it is sent.
class ForeignWindow {
public:
    /// `instance` and `className` are the strings of WM_CLASS; `type` is the atom's name of a
    /// _NET_WM_WINDOW_TYPE, none for an ordinary window.
    explicit ForeignWindow(
        const QByteArray& instance = "editor",
        const QByteArray& className = "Editor",
        const QByteArray& type = {});
    ~ForeignWindow();

    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;

    [[nodiscard]] xcb_window_t id() const { return m_window; }

    void show();
    void iconify();

    /// Makes it a dialog of that window.
    void setOwner(xcb_window_t owner);

    /// By the X server alone, for displays without a window manager. Waits until it shows.
    void takeFocus();
    [[nodiscard]] bool hasFocus() const;

    /// Whether nobody else holds the key with exactly these modifiers on the whole display.
    [[nodiscard]] bool grabKey(xcb_keycode_t keycode, std::uint16_t modifiers);
    void ungrabKey(xcb_keycode_t keycode, std::uint16_t modifiers);

    /// As a screen lock does; whether nobody else has it.
    [[nodiscard]] bool grabKeyboard();
    void ungrabKeyboard();

    /// How often the focus came or went so far, grabs included.
    [[nodiscard]] int focusChanges();

    /// All keys so far, in order.
    [[nodiscard]] const std::vector<ReceivedKey>& keys();
    [[nodiscard]] bool hasReceived(ReceivedKey::Kind kind, xcb_keycode_t keycode);

    [[nodiscard]] xcb_connection_t* connection() const { return m_connection; }

    [[nodiscard]] const xcb_screen_t& screen() const { return *m_screen; }

private:
    void readEvents();
    void setProperty(const char* name, xcb_atom_t type, const QByteArray& value);
    [[nodiscard]] xcb_atom_t atom(const QByteArray& name) const;

    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen;
    xcb_window_t m_window;
    std::vector<ReceivedKey> m_keys;
    int m_focusChanges = 0;
};

} // namespace quorvane
