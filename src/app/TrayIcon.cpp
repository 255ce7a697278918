// SPDX-License-Identifier: MIT
#include "TrayIcon.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPointer>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

TrayIcon::TrayIcon(Dependencies dependencies, Callbacks callbacks)
    : m_dependencies(dependencies),
      m_callbacks(std::move(callbacks)) {
    qGuiApp->installEventFilter(this);
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::makeStatusItem() {
    m_statusItem = m_dependencies.statusBar.makeStatusItem(publishedMenu());
    if (!m_statusItem)
        return;
    refreshImage();
    m_statusItem->onTextColorChanged([self = QPointer(this)] {
        if (self)
            self->refreshImage();
    });
    m_statusItem->setToolTip(m_notice);
    m_statusItem->onClicked([self = QPointer(this)](StatusItem::Click click) {
        if (self)
            self->statusBarButtonClicked(click);
    });
    m_statusItem->setVisible(true);
}

void TrayIcon::setVisible(bool visible) {
    if (!m_statusItem)
        makeStatusItem();
    if (m_statusItem)
        m_statusItem->setVisible(visible);
}

void TrayIcon::setNotice(const QString& text) {
    m_notice = text;
    if (m_statusItem)
        m_statusItem->setToolTip(text);
}

bool TrayIcon::hasButton() const {
    return m_statusItem && m_statusItem->hasButton();
}

std::optional<QRect> TrayIcon::frame() const {
    return m_statusItem ? m_statusItem->frame() : std::nullopt;
}

bool TrayIcon::eventFilter(QObject* watched, QEvent* event) {
    // The desktop may change between its dark and its light scheme at any time.
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        refreshImage();
    return QObject::eventFilter(watched, event);
}

void TrayIcon::refreshImage() {
    if (!m_statusItem)
        return;
    m_statusItem->setImage(
        symbolIcon(Symbol::CalendarBadgeClock, colors(), nameInTheme()), u"Quorvane"_s);
}

void TrayIcon::lookInTheme() {
    m_looksInTheme = true;
    refreshImage();
}

// A bar that finds the symbol in its icon theme gives it the colour of its own icons.
QString TrayIcon::nameInTheme() const {
    const auto name = u"org.quorvane.Quorvane-symbolic"_s;
    return m_looksInTheme && QIcon::hasThemeIcon(name) ? name : QString();
}

SymbolColors TrayIcon::colors() const {
    if (const auto ofBar = m_statusItem->textColor())
        return {*ofBar};
    const auto ofDesktop = SymbolColors::of(QGuiApplication::palette());
    return m_dependencies.appearance.current().scheme ? SymbolColors{ofDesktop.color} : ofDesktop;
}

void TrayIcon::statusBarButtonClicked(StatusItem::Click click) {
    if (click == StatusItem::Click::Right)
        showContextMenu();
    else
        m_callbacks.onClick();
}

void TrayIcon::showContextMenu() {
    m_statusItem->setMenu(contextMenu());
    m_statusItem->performClick();
    // Without the menu the next left click is reported again.
    m_dependencies.mainQueue.async([self = QPointer(this)] {
        if (self && self->m_statusItem)
            self->m_statusItem->setMenu({});
    });
}

StatusMenu TrayIcon::contextMenu() const {
    return {
        {tr("Preferences…"), Qt::CTRL | Qt::Key_Comma, m_callbacks.onShowPreferences},
        {tr("Check for Updates…"), {}, m_callbacks.onCheckForUpdates},
        {},
        {tr("Quit Quorvane"), Qt::CTRL | Qt::Key_Q, m_callbacks.onQuit}};
}

// Some bars that draw the menu themselves open it for every click, so that it must lead to the
// interface, too. None of them tells that it does.
StatusMenu TrayIcon::publishedMenu() const {
    auto menu = contextMenu();
    menu.insert(menu.begin(), {tr("Show Quorvane"), {}, m_callbacks.onShow});
    return menu;
}

} // namespace quorvane
