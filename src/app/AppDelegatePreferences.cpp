// SPDX-License-Identifier: MIT
#include <app/AppDelegate.h>
#include <app/Panel.h>
#include <ui/PreferencesView.h>
#include <ui/SparkleUpdater.h>

namespace quorvane {

using namespace Qt::StringLiterals;

void AppDelegate::showPreferences() {
    orderOutPanel();
    if (!m_preferencesWindow) {
        m_preferencesWindow = std::make_unique<PreferencesView>(
            m_model, *m_environment.platform.keyboardLayout, m_environment.mainQueue);
        m_preferencesWindow->setWindowTitle(u"Quorvane Preferences"_s);
        m_preferencesWindow->setAttribute(Qt::WA_QuitOnClose, false);
    }
    m_preferencesWindow->show();
    m_preferencesWindow->raise();
    m_preferencesWindow->activateWindow();
}

void AppDelegate::checkForUpdates() {
    SparkleUpdater::shared().controller().checkForUpdates(*m_environment.platform.softwareCentre);
}

} // namespace quorvane
