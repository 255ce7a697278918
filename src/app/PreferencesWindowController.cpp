// SPDX-License-Identifier: MIT
#include "PreferencesWindowController.h"

#include "FieldPaste.h"
#include "PreferencesWindow.h"

#include <controls/FocusRing.h>
#include <delivery/CopyText.h>

#include <QWindow>

#include <utility>

namespace quorvane {

PreferencesWindowController::PreferencesWindowController(
    Dependencies dependencies, Callbacks callbacks)
    : m_dependencies(std::move(dependencies)),
      m_callbacks(std::move(callbacks)) {
}

PreferencesWindowController::~PreferencesWindowController() = default;

void PreferencesWindowController::showWindow(InputDevice device, PreferencesPlace place) {
    setupWindow();
    const bool isAtAPlace = place != PreferencesPlace::AsLeft;
    if (isAtAPlace)
        FocusRing::of(*m_window)->setLastInput(InputDevice::Keyboard);
    else if (!m_window->isVisible())
        FocusRing::of(*m_window)->setLastInput(device);
    m_frame->place();
    // Closing has destroyed the native window.
    m_window->winId();
    auto& traits = *m_dependencies.platform.windowTraits;
    traits.prepareDialog(*m_window->windowHandle());
    m_window->show();
    traits.activate(*m_window->windowHandle());
    m_view->reveal(place);
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

PreferencesView::Dependencies PreferencesWindowController::viewDependencies() const {
    const auto& platform = m_dependencies.platform;
    return {
        *platform.keyboardLayout,
        m_dependencies.zones,
        m_dependencies.mainQueue,
        m_dependencies.clock,
        *platform.autostart,
        *platform.desktopShortcut,
        *platform.accessibilityRight,
        platform.states,
        m_callbacks.shortcutStatus,
        m_callbacks.onAllowTyping,
        [&pasteboard = *platform.pasteboard](const QString& text) {
            return copyText(pasteboard, text) == PutOutcome::Taken;
        },
        fieldPaste(*platform.pasteboard),
        {[&traits = *platform.windowTraits] {
            return traits.isComposited();
        }},
        announcedSyntax(m_dependencies.environment)};
}

void PreferencesWindowController::setupWindow() {
    if (m_window)
        return;
    m_view =
        new PreferencesView(m_dependencies.model, viewDependencies(), m_callbacks.onHotKeyChange);
    m_window = std::make_unique<PreferencesWindow>(m_view);
    m_callbacks.attachMainMenu(*m_window);
    m_frame = std::make_unique<PreferencesFrame>(
        *m_window,
        PreferencesFrame::Dependencies{
            m_dependencies.windowFrames,
            m_dependencies.mainQueue,
            *m_dependencies.platform.workspace,
            *m_dependencies.platform.windowTraits});
}

} // namespace quorvane
