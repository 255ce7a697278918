// SPDX-License-Identifier: MIT
#include "TrayStatusItem.h"

#include "TrayMenu.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

using namespace Qt::StringLiterals;

/// Whether a host has embedded our window; until then it has no place on the screen. Qt's own
/// platform plugin finds the window by its name, too.
bool isEmbedded() {
    return std::ranges::any_of(QGuiApplication::allWindows(), [](const QWindow* window) {
        return window->objectName() == "QSystemTrayIconSysWindow"_L1 && window->isExposed();
    });
}

} // namespace

TrayStatusItem::TrayStatusItem(const TrayHosts& hosts, StatusMenu menu)
    : m_hosts(hosts),
      m_published(std::move(menu)) {
    connect(&m_hosts, &TrayHosts::changed, this, &TrayStatusItem::hostsChanged);
    connect(&m_hosts, &TrayHosts::textColorChanged, this, [this] {
        const auto handler = m_textColorChanged;
        if (handler)
            handler();
    });
    if (hasButton())
        makeIcon();
}

TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::setImage(const QIcon& image, const QString& accessibilityDescription) {
    m_image = image;
    m_description = accessibilityDescription;
    showIcon();
}

void TrayStatusItem::setToolTip(const QString& text) {
    m_toolTip = text;
    showIcon();
}

void TrayStatusItem::setVisible(bool visible) {
    m_isVisible = visible;
    showIcon();
}

void TrayStatusItem::performClick() {
    if (m_icon && drawsMenuItself())
        click(Click::Left);
}

std::optional<QRect> TrayStatusItem::frame() const {
    if (!m_icon || !drawsMenuItself() || !isEmbedded())
        return std::nullopt;
    return m_icon->geometry();
}

void TrayStatusItem::hostsChanged() {
    if (hasButton() && !m_icon)
        makeIcon();
}

void TrayStatusItem::makeIcon() {
    m_icon = std::make_unique<QSystemTrayIcon>();
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, &TrayStatusItem::activated);
    // With XEmbed, Qt would open this menu without reporting the click.
    if (!drawsMenuItself()) {
        m_hostsMenu = makeTrayMenu(m_published);
        m_icon->setContextMenu(m_hostsMenu.get());
    }
    showIcon();
}

void TrayStatusItem::showIcon() {
    if (!m_icon)
        return;
    m_icon->setIcon(m_image);
    m_icon->setToolTip(m_toolTip.isEmpty() ? m_description : m_toolTip);
    m_icon->setVisible(m_isVisible && !m_image.isNull());
}

void TrayStatusItem::activated(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
    case QSystemTrayIcon::Trigger:
    case QSystemTrayIcon::DoubleClick: // the second of two clicks in a hurry
        click(Click::Left);
        break;
    case QSystemTrayIcon::Context:
        if (drawsMenuItself())
            click(Click::Right);
        break;
    case QSystemTrayIcon::MiddleClick:
    case QSystemTrayIcon::Unknown:
        break;
    }
}

void TrayStatusItem::click(Click click) {
    if (drawsMenuItself() && !m_attached.empty()) {
        openMenu();
        return;
    }
    const auto handler = m_clicked;
    if (handler)
        handler(click);
}

void TrayStatusItem::openMenu() {
    m_openMenu = makeTrayMenu(m_attached);
    const auto icon = frame().value_or(QRect(QCursor::pos(), QSize(1, 1)));
    const auto* screen = QGuiApplication::screenAt(icon.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    m_openMenu->popup(trayMenuPlace(icon, m_openMenu->sizeHint(), screen->availableGeometry()));
}

bool TrayStatusItem::drawsMenuItself() const {
    return m_hosts.protocol() == TrayProtocol::XEmbed;
}

} // namespace quorvane
