// SPDX-License-Identifier: MIT
#include "Presentation.h"

#include "PreviousFrontmostApp.h"
#include "TrayIcon.h"

#include <controls/Announcement.h>
#include <controls/FocusRing.h>

#include <QCursor>

#include <utility>

namespace quorvane {

Presentation::Presentation(Dependencies dependencies, const InterfaceCallbacks& callbacks)
    : m_model(dependencies.model),
      m_trayIcon(dependencies.trayIcon),
      m_previousFrontmostApp(dependencies.previousFrontmostApp),
      m_onAppearing(callbacks.onAppearing),
      m_panel(
          {dependencies.windowFrames,
           dependencies.mainQueue,
           dependencies.workspace,
           dependencies.windowTraits},
          preparing(callbacks)),
      m_popover(
          {dependencies.trayIcon,
           dependencies.mainQueue,
           dependencies.workspace,
           dependencies.windowTraits},
          preparing(callbacks)) {
}

PresentationMode Presentation::effectivePresentationMode() const {
    // An icon that is hidden counts as one: its place is remembered.
    if (m_model.presentationMode() == PresentationMode::Popover && !m_trayIcon.hasButton())
        return PresentationMode::Window;
    return m_model.presentationMode();
}

void Presentation::toggle(InputDevice device) {
    if (isShown()) {
        hide();
        return;
    }
    m_previousFrontmostApp.remember();
    present(device);
}

void Presentation::surface() {
    // While the interface is shown, the window in front may be the interface itself.
    if (!isShown())
        m_previousFrontmostApp.remember();
    present();
}

void Presentation::makeReady() {
    if (isShown())
        return;
    if (m_model.presentationMode() == PresentationMode::Window)
        m_panel.makeReady();
    else
        m_popover.makeReady();
}

void Presentation::present(InputDevice device) {
    const bool appears = !isShown();
    showWindow(device);
    if (appears)
        appear();
}

/// While the desktop brings the window to the screen, and before anything is painted: what was
/// hidden would show the moment at which it was.
void Presentation::appear() {
    m_onAppearing();
    for (auto* view : {m_panel.view(), m_popover.view()}) {
        if (view != nullptr)
            view->refreshNow();
    }
}

void Presentation::showWindow(InputDevice device) {
    prepareViews();
    // The other one may show: the tray has come or gone since.
    if (effectivePresentationMode() == PresentationMode::Window) {
        m_popover.close();
        m_panel.show(device);
    } else {
        m_panel.hide();
        m_popover.show(device);
    }
}

void Presentation::hide() {
    m_panel.hide();
    m_popover.close();
}

void Presentation::handleIconClick() {
    if (m_popover.takeDismissingClick())
        return;
    m_popover.anchor().noteClick(QCursor::pos());
    toggle(InputDevice::Pointer);
    m_popover.anchor().clickHandled();
}

void Presentation::handlePresentationModeChange(PresentationMode mode) {
    const bool wasShown = isShown();
    const auto device = lastInput();
    hide();
    if (mode == PresentationMode::Popover)
        m_panel.discard();
    else
        m_popover.discard();
    if (wasShown)
        showWindow(device);
}

void Presentation::refreshSoon() {
    m_panel.refreshSoon();
    m_popover.refreshSoon();
}

void Presentation::rememberTarget() {
    // An open popover closes at every press elsewhere.
    if (m_popover.isShown())
        m_previousFrontmostApp.rememberUnlessGone();
    else
        m_previousFrontmostApp.remember();
}

void Presentation::frontmostDidChange() {
    if (!isShown())
        return;
    rememberTarget();
    prepareViews();
}

InputDevice Presentation::lastInput() const {
    for (const auto* view : {m_panel.view(), m_popover.view()}) {
        if (view != nullptr && view->isVisible())
            return FocusRing::lastInput(*view->window());
    }
    return InputDevice::Pointer;
}

void Presentation::setNotice(const QString& text) {
    m_notice = text;
    prepareViews();
    // Nobody sees the views at this moment, but whoever listens need not wait for the next showing.
    if (auto* view = m_panel.view() != nullptr ? m_panel.view() : m_popover.view())
        announce(*view, text);
}

void Presentation::setHint(const PanelHint& hint) {
    m_hint = hint;
    prepareViews();
}

InterfaceCallbacks Presentation::preparing(InterfaceCallbacks callbacks) {
    callbacks.makeContentView = [this, make = std::move(callbacks.makeContentView)] {
        auto view = make();
        prepare(*view);
        return view;
    };
    return callbacks;
}

void Presentation::prepare(PopoverView& view) const {
    view.setInsertTarget(m_previousFrontmostApp.title());
    view.setNotice(m_notice);
    view.setHint(m_hint);
}

void Presentation::prepareViews() const {
    for (auto* view : {m_panel.view(), m_popover.view()}) {
        if (view != nullptr)
            prepare(*view);
    }
}

bool Presentation::isShown() const {
    return m_panel.isVisible() || m_popover.isShown();
}

} // namespace quorvane
