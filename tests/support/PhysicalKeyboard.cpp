// SPDX-License-Identifier: MIT
#include <support/PhysicalKeyboard.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

namespace quorvane {

namespace {

constexpr quint32 firstScanCode = 8;

} // namespace

void PhysicalKeyboard::press(const PhysicalKey& key) {
    send(QEvent::ShortcutOverride, key);
    send(QEvent::KeyPress, key);
    m_held |= key.modifier;
}

void PhysicalKeyboard::release(const PhysicalKey& key) {
    send(QEvent::KeyRelease, key);
    m_held &= ~Qt::KeyboardModifiers(key.modifier);
}

void PhysicalKeyboard::repeat(const PhysicalKey& key) {
    send(QEvent::KeyRelease, key, Repeat::Yes);
    send(QEvent::ShortcutOverride, key, Repeat::Yes);
    send(QEvent::KeyPress, key, Repeat::Yes);
}

void PhysicalKeyboard::type(const PhysicalKey& key, std::initializer_list<PhysicalKey> held) {
    for (const auto& other : held)
        press(other);
    press(key);
    release(key);
    for (const auto& other : held)
        release(other);
}

void PhysicalKeyboard::send(QEvent::Type type, const PhysicalKey& key, Repeat repeat) {
    QKeyEvent event(
        type,
        key.name,
        m_held,
        key.evdevCode + firstScanCode,
        key.keysym,
        0,
        {},
        repeat == Repeat::Yes);
    QCoreApplication::sendEvent(m_window.windowHandle(), &event);
}

} // namespace quorvane
