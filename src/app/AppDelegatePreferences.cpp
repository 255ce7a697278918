// SPDX-License-Identifier: MIT
#include <app/AppDelegate.h>
#include <app/Panel.h>
#include <controls/FocusRing.h>
#include <preferences/PreferencesView.h>
#include <ui/SparkleUpdater.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize preferencesSize{400, 540};

ShortcutRecorder::Activity activityOf(const HotKeyMonitor* monitor) {
    using Activity = ShortcutRecorder::Activity;
    if (monitor == nullptr || monitor->lastFailure())
        return Activity::Unavailable;
    return monitor->isArmed() ? Activity::Active : Activity::HeldElsewhere;
}

} // namespace

void AppDelegate::showPreferences() {
    orderOutPanel();
    if (!m_preferencesWindow) {
        m_preferencesWindow = std::make_unique<PreferencesView>(
            m_model,
            PreferencesView::Services{
                *m_environment.platform.keyboardLayout,
                m_environment.zones,
                m_environment.mainQueue,
                m_environment.clock,
                [this] {
                    return activityOf(m_hotKeyMonitor.get());
                }},
            [self = QPointer(this), &defaults = m_environment.defaults](HotKeyCombo combo) {
                combo.save(defaults);
                if (self)
                    self->applyHotKey(combo);
            });
        m_preferencesWindow->setWindowTitle(u"Quorvane Preferences"_s);
        m_preferencesWindow->setAttribute(Qt::WA_QuitOnClose, false);
        m_preferencesWindow->resize(preferencesSize);
        new FocusRing(m_preferencesWindow.get());
    }
    m_preferencesWindow->show();
    m_preferencesWindow->raise();
    m_preferencesWindow->activateWindow();
}

void AppDelegate::checkForUpdates() {
    SparkleUpdater::shared().controller().checkForUpdates(*m_environment.platform.softwareCentre);
}

void AppDelegate::applyHotKey(HotKeyCombo combo) {
    m_model.setHotKey(combo);
    if (!m_hotKeyMonitor)
        return;
    m_hotKeyMonitor->setCombo(combo);
    m_hotKeyMonitor->stop();
    m_hotKeyMonitor->start();
}

} // namespace quorvane
