// SPDX-License-Identifier: MIT
#include "PreferencesWindowController.h"

#include "PanelPlacement.h"
#include "PreferencesWindow.h"
#include "Screens.h"

#include <controls/FocusRing.h>

#include <QScreen>
#include <QWindow>

#include <utility>

namespace quorvane {

PreferencesWindowController::PreferencesWindowController(
    Dependencies dependencies, Callbacks callbacks)
    : m_dependencies(std::move(dependencies)),
      m_callbacks(std::move(callbacks)) {
}

PreferencesWindowController::~PreferencesWindowController() = default;

void PreferencesWindowController::showWindow(InputDevice device) {
    setupWindow();
    if (!m_window->isVisible())
        FocusRing::of(*m_window)->setLastInput(device);
    m_window->show();
    m_dependencies.windowTraits.activate(*m_window->windowHandle());
}

void PreferencesWindowController::refreshSoon() {
    if (m_view)
        m_view->refreshSoon();
}

QWindow* PreferencesWindowController::visibleWindow() const {
    return m_window && m_window->isVisible() ? m_window->windowHandle() : nullptr;
}

void PreferencesWindowController::setupWindow() {
    if (m_window)
        return;
    m_view = new PreferencesView(
        m_dependencies.model,
        PreferencesView::Dependencies{
            m_dependencies.keyboardLayout,
            m_dependencies.zones,
            m_dependencies.mainQueue,
            m_dependencies.clock,
            m_callbacks.shortcutActivity,
            m_dependencies.pasteReader},
        m_callbacks.onHotKeyChange);
    m_window = std::make_unique<PreferencesWindow>(m_view);
    m_callbacks.attachMainMenu(*m_window);
    const auto& screen = screens::mainScreen(m_dependencies.workspace);
    m_window->setGeometry(panelplacement::centred(m_window->size(), screen.availableGeometry()));
}

} // namespace quorvane
