// SPDX-License-Identifier: MIT
#include "GlobalShortcut.h"

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcShortcut, "quorvane.shortcut", QtFatalMsg)

} // namespace

GlobalShortcut::GlobalShortcut(Dependencies dependencies, Callbacks callbacks)
    : m_dependencies(dependencies),
      m_callbacks(std::move(callbacks)),
      m_press(m_dependencies.mainQueue) {
}

GlobalShortcut::~GlobalShortcut() {
    if (!m_monitor)
        return;
    // Triggers that are queued keep the monitor alive.
    m_monitor->setOnTriggered({});
    m_monitor->setOnReleased({});
    m_monitor->setOnDeliveryChanged({});
    m_monitor->setOnComboChanged({});
}

void GlobalShortcut::startHotKeyMonitor(HotKeyCombo combo) {
    m_monitor = HotKeyMonitor::create(
        combo,
        {m_dependencies.accessibilityRight, m_dependencies.eventTaps, m_dependencies.mainQueue});
    m_monitor->setOnTriggered([this] { handleTrigger(); });
    m_monitor->setOnReleased([this] { m_press.end(); });
    m_monitor->setOnDeliveryChanged(m_callbacks.onActivityChanged);
    m_monitor->setOnComboChanged([this] { m_callbacks.onComboChanged(m_monitor->combo()); });
    m_monitor->start();
}

void GlobalShortcut::change(HotKeyCombo combo) {
    if (!m_monitor)
        return;
    m_monitor->setCombo(combo);
    m_monitor->stop();
    m_press.end();
    m_monitor->start();
    // The press that was recorded may go on: its repeats are no press of the shortcut.
    if (m_monitor->isKeyDown())
        m_press.join();
}

void GlobalShortcut::retry() {
    if (m_monitor)
        m_monitor->retry();
}

ShortcutRecorder::Activity GlobalShortcut::activity() const {
    using Activity = ShortcutRecorder::Activity;
    if (!m_monitor || m_monitor->lastFailure())
        return Activity::Unavailable;
    switch (m_monitor->delivery()) {
    case TapDelivery::Delivering:
        return Activity::Active;
    case TapDelivery::HeldElsewhere:
        return Activity::HeldElsewhere;
    case TapDelivery::Unavailable:
        return Activity::Unavailable;
    case TapDelivery::NoSuchKey:
    case TapDelivery::Off: // of modifiers that no keyboard has, no press is watched
        break;
    }
    return Activity::NoSuchKey;
}

void GlobalShortcut::handleTrigger() {
    if (m_press.begins(m_monitor->tellsRelease()))
        m_callbacks.onPressed();
    else
        qCDebug(lcShortcut, "a repeat of the key that is held down");
}

} // namespace quorvane
