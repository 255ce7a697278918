// SPDX-License-Identifier: MIT
#include "Presentation.h"

#include "PreviousFrontmostApp.h"
#include "TrayIcon.h"

#include <QCursor>

namespace quorvane {

Presentation::Presentation(Dependencies dependencies, const InterfaceCallbacks& callbacks)
    : m_model(dependencies.model),
      m_trayIcon(dependencies.trayIcon),
      m_previousFrontmostApp(dependencies.previousFrontmostApp),
      m_panel(
          {dependencies.windowFrames,
           dependencies.mainQueue,
           dependencies.workspace,
           dependencies.windowTraits},
          callbacks),
      m_popover(
          {dependencies.trayIcon,
           dependencies.mainQueue,
           dependencies.workspace,
           dependencies.windowTraits},
          callbacks) {
}

PresentationMode Presentation::effectivePresentationMode() const {
    // An icon that is hidden counts as one: its place is remembered.
    if (m_model.presentationMode() == PresentationMode::Popover && !m_trayIcon.hasButton())
        return PresentationMode::Window;
    return m_model.presentationMode();
}

void Presentation::toggle() {
    if (isShown()) {
        hide();
        return;
    }
    m_previousFrontmostApp.remember();
    present();
}

void Presentation::surface() {
    // While the interface is shown, the window in front may be the interface itself.
    if (!isShown())
        m_previousFrontmostApp.remember();
    present();
}

void Presentation::present() {
    if (effectivePresentationMode() == PresentationMode::Window)
        m_panel.show();
    else
        m_popover.show();
}

void Presentation::hide() {
    m_panel.hide();
    m_popover.close();
}

void Presentation::handleIconClick() {
    if (m_popover.takeDismissingClick())
        return;
    m_popover.anchor().noteClick(QCursor::pos());
    toggle();
    m_popover.anchor().clickHandled();
}

void Presentation::handlePresentationModeChange(PresentationMode mode) {
    const bool wasShown = isShown();
    hide();
    if (mode == PresentationMode::Popover)
        m_panel.discard();
    else
        m_popover.discard();
    if (wasShown)
        present();
}

void Presentation::refreshSoon() {
    m_panel.refreshSoon();
    m_popover.refreshSoon();
}

bool Presentation::isShown() const {
    return m_panel.isVisible() || m_popover.isShown();
}

} // namespace quorvane
