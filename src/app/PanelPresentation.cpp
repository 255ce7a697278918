// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "MainMenu.h"
#include "PanelFrame.h"

#include <app/Panel.h>

#include <QWindow>

namespace quorvane {

bool AppDelegate::isPanelVisible() const {
    return m_panel && m_panel->isVisible();
}

void AppDelegate::setupPanel() {
    if (m_panel)
        return;
    m_panel = std::make_unique<Panel>(makeContentView().release());
    m_mainMenu->attachTo(*m_panel);
    m_panelFrame = std::make_unique<PanelFrame>(
        *m_panel,
        PanelFrame::Surroundings{
            m_environment.windowFrames,
            m_environment.mainQueue,
            *m_environment.platform.workspace});
    m_panelFrame->restore();
    connect(
        m_panel.get(),
        &Panel::painted,
        this,
        &AppDelegate::prepareAfterFirstPaint,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void AppDelegate::showPanel() {
    setupPanel();
    m_panelFrame->moveOntoScreen();
    m_panel->winId();
    auto& traits = *m_environment.platform.windowTraits;
    traits.preparePanel(*m_panel->windowHandle());
    m_panel->show();
    m_panel->raise();
    // Only now: the first place is ours, not the user's.
    m_panelFrame->follow();
    traits.presentPanel(*m_panel->windowHandle());
}

void AppDelegate::orderOutPanel() {
    if (m_panel)
        m_panel->hide();
}

void AppDelegate::discardPanel() {
    if (m_panelFrame)
        m_panelFrame->saveNow();
    m_panelFrame.reset();
    m_panel.reset();
}

void AppDelegate::activeSpaceDidChange() {
    if (isPanelVisible())
        m_environment.platform.windowTraits->orderFront(*m_panel->windowHandle());
}

} // namespace quorvane
