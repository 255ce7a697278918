// SPDX-License-Identifier: MIT
#include "GlobalShortcut.h"

#include <utility>

namespace quorvane {

GlobalShortcut::GlobalShortcut(Dependencies dependencies, std::function<void()> onTriggered)
    : m_dependencies(dependencies),
      m_onTriggered(std::move(onTriggered)) {
}

void GlobalShortcut::startHotKeyMonitor(HotKeyCombo combo) {
    m_monitor = HotKeyMonitor::create(
        combo,
        {m_dependencies.accessibilityRight, m_dependencies.eventTaps, m_dependencies.mainQueue});
    m_monitor->setOnTriggered(m_onTriggered);
    m_monitor->start();
}

void GlobalShortcut::change(HotKeyCombo combo) {
    if (!m_monitor)
        return;
    m_monitor->setCombo(combo);
    m_monitor->stop();
    m_monitor->start();
}

ShortcutRecorder::Activity GlobalShortcut::activity() const {
    using Activity = ShortcutRecorder::Activity;
    if (!m_monitor || m_monitor->lastFailure())
        return Activity::Unavailable;
    return m_monitor->isArmed() ? Activity::Active : Activity::HeldElsewhere;
}

} // namespace quorvane
