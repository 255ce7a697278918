// SPDX-License-Identifier: MIT
#include <app/AppDelegate.h>
#include <app/Panel.h>
#include <app/PanelFrame.h>

#include <QWindow>

namespace quorvane {

bool AppDelegate::isPanelVisible() const {
    return m_panel && m_panel->isVisible();
}

std::unique_ptr<PopoverView> AppDelegate::makeContentView() {
    const auto weakly = [self = QPointer(this)](void (AppDelegate::*call)()) {
        return [self, call] {
            if (self)
                (self->*call)();
        };
    };
    return std::make_unique<PopoverView>(
        m_model,
        PopoverView::Services{
            *m_environment.platform.pasteboard,
            *m_environment.platform.keyboardLayout,
            m_environment.zones,
            m_environment.mainQueue,
            m_environment.clock,
            m_environment.currentZone,
            {[&traits = *m_environment.platform.windowTraits] {
                return traits.isComposited();
            }}},
        PopoverView::Callbacks{
            weakly(&AppDelegate::performInsert),
            weakly(&AppDelegate::showPreferences),
            weakly(&AppDelegate::checkForUpdates),
            weakly(&AppDelegate::orderOutPanel),
            weakly(&AppDelegate::terminate)});
}

void AppDelegate::present() {
    showPanel();
}

void AppDelegate::setupPanel() {
    if (m_panel)
        return;
    m_contentView = makeContentView().release();
    m_panel = std::make_unique<Panel>(m_contentView);
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

void AppDelegate::prepareAfterFirstPaint() {
    m_environment.platform.appearance->read();
    m_zoneWarmUp = std::make_unique<ZoneWarmUp>(
        m_environment.mainQueue,
        m_environment.zones,
        m_environment.clock.now(),
        m_environment.locale);
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

} // namespace quorvane
