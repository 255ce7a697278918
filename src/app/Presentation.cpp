// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "StatusPopover.h"

#include <app/Panel.h>

namespace quorvane {

PresentationMode AppDelegate::effectivePresentationMode() const {
    const bool hasIcon = m_statusItem && m_statusItem->hasButton();
    // A popover needs an icon to hang from; one that is hidden counts, its place is remembered.
    if (m_model.presentationMode() == PresentationMode::Popover && !hasIcon)
        return PresentationMode::Window;
    return m_model.presentationMode();
}

void AppDelegate::togglePresentation() {
    if (isPanelVisible() || isPopoverShown()) {
        hideInterface();
        return;
    }
    rememberFrontmostApp();
    present();
}

void AppDelegate::surfaceMainUIForReopen() {
    // While it is shown, what is in front may be the interface itself.
    if (!isPanelVisible() && !isPopoverShown())
        rememberFrontmostApp();
    present();
}

void AppDelegate::present() {
    if (effectivePresentationMode() == PresentationMode::Window) {
        showPanel();
        return;
    }
    setupPopover();
    showPopover();
}

void AppDelegate::hideInterface() {
    orderOutPanel();
    closePopover();
}

void AppDelegate::handlePresentationModeChange(PresentationMode mode) {
    const bool wasVisible = isPanelVisible() || isPopoverShown();
    hideInterface();
    if (mode == PresentationMode::Popover)
        discardPanel();
    else
        m_popover.reset();
    if (wasVisible)
        present();
}

void AppDelegate::rememberFrontmostApp() {
    m_previousFrontmostApp = m_environment.platform.workspace->frontmostApplication();
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
            weakly(&AppDelegate::hideInterface),
            weakly(&AppDelegate::terminate)});
}

void AppDelegate::prepareAfterFirstPaint() {
    // Panel and popover both have a first paint.
    if (m_zoneWarmUp)
        return;
    m_environment.platform.appearance->read();
    m_zoneWarmUp = std::make_unique<ZoneWarmUp>(
        m_environment.mainQueue,
        m_environment.zones,
        m_environment.clock.now(),
        m_environment.locale);
}

} // namespace quorvane
