// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include <controls/SymbolIcon.h>

#include <QCursor>
#include <QGuiApplication>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

void AppDelegate::makeStatusItem() {
    m_statusItem = m_environment.platform.statusBar->makeStatusItem(contextMenu());
    if (!m_statusItem)
        return;
    applyIconImage();
    m_statusItem->onClicked([self = QPointer(this)](StatusItem::Click click) {
        if (self)
            self->statusBarButtonClicked(click);
    });
    m_statusItem->setVisible(true);
}

void AppDelegate::applyIconImage() {
    if (m_statusItem)
        m_statusItem->setImage(
            symbolIcon(Symbol::CalendarBadgeClock, SymbolColors::of(QGuiApplication::palette())),
            u"Quorvane"_s);
}

void AppDelegate::statusBarButtonClicked(StatusItem::Click click) {
    if (click == StatusItem::Click::Right) {
        showContextMenu();
        return;
    }
    // The press of this very click has closed the popover already.
    if (std::exchange(m_reopeningHeldOff, std::nullopt))
        return;
    m_popoverAnchor.noteClick(QCursor::pos());
    togglePresentation();
    m_popoverAnchor.clickHandled();
}

void AppDelegate::showContextMenu() {
    if (m_statusItem) {
        m_statusItem->setMenu(contextMenu());
        m_statusItem->performClick();
    }
    // Without the menu the next left click is reported again.
    m_environment.mainQueue.async([self = QPointer(this)] {
        if (self && self->m_statusItem)
            self->m_statusItem->setMenu({});
    });
}

StatusMenu AppDelegate::contextMenu() {
    const auto weakly = [self = QPointer(this)](void (AppDelegate::*call)()) {
        return [self, call] {
            if (self)
                (self->*call)();
        };
    };
    return {
        {tr("Preferences…"), Qt::CTRL | Qt::Key_Comma, weakly(&AppDelegate::showPreferences)},
        {tr("Check for Updates…"), {}, weakly(&AppDelegate::checkForUpdates)},
        {},
        {tr("Quit Quorvane"), Qt::CTRL | Qt::Key_Q, weakly(&AppDelegate::terminate)}};
}

void AppDelegate::applyShowInMenuBar(bool visible) {
    if (!visible)
        closePopover();
    if (!m_statusItem)
        makeStatusItem();
    if (m_statusItem)
        m_statusItem->setVisible(visible);
}

} // namespace quorvane
