// SPDX-License-Identifier: MIT
// What the parts of the shell ask of the delegate.
#include "AppDelegate.h"
#include "ContentView.h"
#include "ListedEntry.h"
#include "MainMenu.h"

#include <utility>

namespace quorvane {

/// A callback that may outlive the delegate and then does nothing.
std::function<void()> AppDelegate::weakly(void (AppDelegate::*call)()) {
    return [self = QPointer(this), call] {
        if (self)
            (self->*call)();
    };
}

TrayIcon::Callbacks AppDelegate::trayIconCallbacks() {
    return {
        [this] {
            m_shortcut.retry();
            m_presentation.handleIconClick();
        },
        weakly(&AppDelegate::surfaceMainUIForReopen),
        weakly(&AppDelegate::showPreferences),
        weakly(&AppDelegate::checkForUpdates),
        weakly(&AppDelegate::terminate)};
}

InterfaceCallbacks AppDelegate::interfaceCallbacks() {
    return {
        [this] { return makeContentView(m_model, m_dependencies, contentViewCallbacks()); },
        [this](QWidget& window) { m_mainMenu->attachTo(window); },
        [this] { renew(); },
        weakly(&AppDelegate::prepareAfterFirstPaint)};
}

PreferencesWindowController::Callbacks AppDelegate::preferencesCallbacks() {
    return {
        [this] {
            return ShortcutRecorder::Status{m_shortcut.activity(), m_shortcut.holder()};
        },
        [self = QPointer(this)](HotKeyCombo combo) {
            if (!self)
                return;
            self->m_model.setHotKey(combo);
            self->m_shortcut.change(combo);
            self->m_shortcutHint.refresh();
            rebind(*self->m_dependencies.platform.desktopShortcut, combo);
        },
        [this] { m_typingConsent.allow(); },
        [this](QWidget& window) {
            m_mainMenu->attachTo(window);
        }};
}

ModelObserver::Callbacks AppDelegate::modelCallbacks() {
    return {
        [this](bool show) {
            if (!show)
                m_presentation.popover().close();
            m_trayIcon.setVisible(show);
        },
        [this](PresentationMode mode) { m_presentation.handlePresentationModeChange(mode); },
        [this](bool show) {
            m_dock.setVisible(show);
        }};
}

DeliveryNotice::Callbacks AppDelegate::noticeCallbacks() {
    return {
        [this] {
            m_trayIcon.setNotice(m_notice.text());
            m_presentation.setNotice(m_notice.text());
        },
        [self = QPointer(this)] {
            if (self)
                self->showPreferences(PreferencesPlace::Typing);
        }};
}

Insertion::Callbacks AppDelegate::insertionCallbacks() {
    return {
        [this] { m_notice.clear(); },
        [this](CopyReason reason) {
            m_notice.tellCopied(reason);
        }};
}

PopoverView::Callbacks AppDelegate::contentViewCallbacks() {
    return {
        weakly(&AppDelegate::performInsert),
        weakly(&AppDelegate::showPreferences),
        weakly(&AppDelegate::checkForUpdates),
        [self = QPointer(this)] {
            if (self)
                self->m_presentation.hide();
        },
        weakly(&AppDelegate::terminate),
        [self = QPointer(this)] {
            if (self)
                self->showPreferences(PreferencesPlace::Shortcut);
        },
        [self = QPointer(this)] {
            if (self)
                self->m_shortcutHint.dismiss();
        }};
}

} // namespace quorvane
