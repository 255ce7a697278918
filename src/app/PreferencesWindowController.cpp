// SPDX-License-Identifier: MIT
#include "PreferencesWindowController.h"

#include "PreferencesWindow.h"

#include <controls/FocusRing.h>

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
    m_frame->place();
    // Closing has destroyed the native window.
    m_window->winId();
    auto& traits = m_dependencies.windowTraits;
    traits.prepareDialog(*m_window->windowHandle());
    m_window->show();
    traits.activate(*m_window->windowHandle());
}

void PreferencesWindowController::saveFrameNow() {
    if (m_frame)
        m_frame->saveNow();
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
            m_dependencies.autostart,
            m_callbacks.shortcutStatus,
            m_dependencies.pasteReader},
        m_callbacks.onHotKeyChange);
    m_window = std::make_unique<PreferencesWindow>(m_view);
    m_callbacks.attachMainMenu(*m_window);
    m_frame = std::make_unique<PreferencesFrame>(
        *m_window,
        PreferencesFrame::Dependencies{
            m_dependencies.windowFrames,
            m_dependencies.mainQueue,
            m_dependencies.workspace,
            m_dependencies.windowTraits});
}

} // namespace quorvane
