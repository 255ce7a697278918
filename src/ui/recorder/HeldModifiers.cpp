// SPDX-License-Identifier: MIT
#include "HeldModifiers.h"

#include <platform/KeyCodes.h>

#include <QKeyEvent>

namespace quorvane {

namespace {

// Keysyms (X11/keysymdef.h, which Wayland shares) that Qt has no key for.
constexpr quint32 keysymMetaL = 0xffe7;
constexpr quint32 keysymMetaR = 0xffe8;
constexpr quint32 keysymIsoLock = 0xfe01;
constexpr quint32 keysymIsoLevel5Lock = 0xfe13;

constexpr quint32 nativeLockMask = 1U << 1; ///< the core protocol's Lock, which is Caps Lock

bool isAltPosition(const QKeyEvent& event) {
    const auto keyCode = keyCodeFromScanCode(event.nativeScanCode());
    return keyCode == keycode::leftOption || keyCode == keycode::rightOption;
}

bool shiftsLevelOrGroup(const QKeyEvent& event) {
    return event.nativeVirtualKey() >= keysymIsoLock &&
           event.nativeVirtualKey() <= keysymIsoLevel5Lock;
}

/// The usual keymaps call Alt with Shift held Meta. Where Meta is a key of its own it is the one
/// with the logo.
bool isAltCalledMeta(const QKeyEvent& event) {
    const auto keysym = event.nativeVirtualKey();
    return (keysym == keysymMetaL || keysym == keysymMetaR) && isAltPosition(event);
}

std::optional<ModifierFlags> modifierOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
        return modifier::shift;
    case Qt::Key_Control:
        return modifier::control;
    case Qt::Key_Alt:
        return modifier::option;
    case Qt::Key_Meta:
        return isAltCalledMeta(event) ? modifier::option : modifier::command;
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return modifier::command;
    case Qt::Key_CapsLock:
        return modifier::capsLock;
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_AltGr:
    case Qt::Key_Mode_switch:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
        return modifier::none;
    default:
        return shiftsLevelOrGroup(event) ? std::optional(modifier::none) : std::nullopt;
    }
}

ModifierFlags without(ModifierFlags flags, ModifierFlags gone) {
    return {flags.bits & ~gone.bits};
}

} // namespace

ModifierFlags flagsOf(const QKeyEvent& event) {
    // The key event's own modifiers() is the guess that HeldModifiers does without.
    const auto held = event.QInputEvent::modifiers();
    ModifierFlags flags;
    if (held.testFlag(Qt::ShiftModifier))
        flags = flags | modifier::shift;
    if (held.testFlag(Qt::ControlModifier))
        flags = flags | modifier::control;
    if (held.testFlag(Qt::AltModifier))
        flags = flags | modifier::option;
    if (held.testFlag(Qt::MetaModifier))
        flags = flags | modifier::command;
    if ((event.nativeModifiers() & nativeLockMask) != 0)
        flags = flags | modifier::capsLock;
    return flags;
}

std::optional<ModifierFlags> HeldModifiers::afterPress(const QKeyEvent& event) {
    const auto pressed = modifierOf(event);
    if (!pressed)
        return std::nullopt;
    m_keys.insert_or_assign(event.nativeScanCode(), *pressed);
    return with(flagsOf(event));
}

std::optional<ModifierFlags> HeldModifiers::afterRelease(const QKeyEvent& event) {
    // The keymap may call the key something else by now: what went down is what goes up.
    const auto known = m_keys.find(event.nativeScanCode());
    const auto released = known != m_keys.end() ? std::optional(known->second) : modifierOf(event);
    if (!released)
        return std::nullopt;
    m_keys.erase(event.nativeScanCode());
    return with(without(flagsOf(event), *released));
}

ModifierFlags HeldModifiers::with(ModifierFlags flags) const {
    for (const auto& [key, held] : m_keys)
        flags = flags | held;
    return flags;
}

} // namespace quorvane
