// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "MainMenu.h"
#include "PanelPlacement.h"
#include "PreferencesWindow.h"
#include "Screens.h"

#include <preferences/PreferencesView.h>

#include <QScreen>

#include <panel/SparkleUpdater.h>

namespace quorvane {

namespace {

ShortcutRecorder::Activity activityOf(const HotKeyMonitor* monitor) {
    using Activity = ShortcutRecorder::Activity;
    if (monitor == nullptr || monitor->lastFailure())
        return Activity::Unavailable;
    return monitor->isArmed() ? Activity::Active : Activity::HeldElsewhere;
}

} // namespace

void AppDelegate::showPreferences() {
    hideInterface();
    setupPreferences();
    m_preferencesWindow->show();
    activateApplication();
}

bool AppDelegate::arePreferencesVisible() const {
    return m_preferencesWindow && m_preferencesWindow->isVisible();
}

void AppDelegate::setupPreferences() {
    if (m_preferencesWindow)
        return;
    m_preferencesView = new PreferencesView(
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
    m_preferencesWindow = std::make_unique<PreferencesWindow>(m_preferencesView);
    m_mainMenu->attachTo(*m_preferencesWindow);
    const auto& screen = screens::mainScreen(*m_environment.platform.workspace);
    m_preferencesWindow->setGeometry(
        panelplacement::centred(m_preferencesWindow->size(), screen.availableGeometry()));
}

void AppDelegate::checkForUpdates() {
    // It has the keyboard grabbed, which what comes now needs.
    closePopover();
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

void AppDelegate::setupMainMenu() {
    m_mainMenu = std::make_unique<MainMenu>(MainMenu::Actions{
        [this] { checkForUpdates(); },
        [this] {
            terminate();
        }});
}

} // namespace quorvane
