// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QWidget>

#include <linux/input-event-codes.h>

namespace quorvane {

/// A key by its place, with the name that the layout in use gives it.
struct PhysicalKey {
    quint32 evdevCode = 0;
    Qt::Key name = Qt::Key_unknown;
    Qt::KeyboardModifier modifier = Qt::NoModifier; ///< what it holds while it is down
    quint32 keysym = 0;
};

namespace physicalkey {

inline constexpr PhysicalKey shift{KEY_LEFTSHIFT, Qt::Key_Shift, Qt::ShiftModifier};
inline constexpr PhysicalKey rightShift{KEY_RIGHTSHIFT, Qt::Key_Shift, Qt::ShiftModifier};
inline constexpr PhysicalKey control{KEY_LEFTCTRL, Qt::Key_Control, Qt::ControlModifier};
inline constexpr PhysicalKey alt{KEY_LEFTALT, Qt::Key_Alt, Qt::AltModifier};
inline constexpr PhysicalKey super{KEY_LEFTMETA, Qt::Key_Meta, Qt::MetaModifier};
inline constexpr PhysicalKey altGr{KEY_RIGHTALT, Qt::Key_AltGr};
inline constexpr PhysicalKey capsLock{KEY_CAPSLOCK, Qt::Key_CapsLock};
inline constexpr PhysicalKey d{KEY_D, Qt::Key_D};
inline constexpr PhysicalKey k{KEY_K, Qt::Key_K};
inline constexpr PhysicalKey escape{KEY_ESC, Qt::Key_Escape};
inline constexpr PhysicalKey tab{KEY_TAB, Qt::Key_Tab};
inline constexpr PhysicalKey returnKey{KEY_ENTER, Qt::Key_Return};
inline constexpr PhysicalKey down{KEY_DOWN, Qt::Key_Down};
inline constexpr PhysicalKey f5{KEY_F5, Qt::Key_F5};

} // namespace physicalkey

/// Types into a window as X11 does: each event comes with the key's native code, and with the
/// modifiers that were held before it.
class PhysicalKeyboard {
public:
    explicit PhysicalKeyboard(QWidget& window) : m_window(window) {}

    void press(const PhysicalKey& key);
    void release(const PhysicalKey& key);

    /// What a key that is held down sends again and again.
    void repeat(const PhysicalKey& key);

    /// Press and release, with other keys held around them.
    void type(const PhysicalKey& key, std::initializer_list<PhysicalKey> held = {});

private:
    enum class Repeat { No, Yes };

    void send(QEvent::Type type, const PhysicalKey& key, Repeat repeat = Repeat::No);

    QWidget& m_window;
    Qt::KeyboardModifiers m_held;
};

} // namespace quorvane
