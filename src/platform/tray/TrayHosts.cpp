// SPDX-License-Identifier: MIT
#include "TrayLog.h"

#include <platform_tray/TrayHosts.h>

#include <utility>

namespace quorvane {

Q_LOGGING_CATEGORY(lcTray, "quorvane.tray", QtFatalMsg)

namespace {

using Presence = StatusNotifierHosts::Presence;

const char* nameOf(TrayProtocol protocol) {
    return protocol == TrayProtocol::XEmbed ? "XEmbed" : "StatusNotifierItem";
}

} // namespace

std::optional<TrayProtocol> protocolFor(Presence statusNotifierHosts, bool isXEmbedHostThere) {
    switch (statusNotifierHosts) {
    case Presence::Present:
        return TrayProtocol::StatusNotifierItem;
    case Presence::Unknown:
        // Qt would ask the watcher as well, and wait for it.
        return std::nullopt;
    case Presence::Absent:
        break;
    }
    return isXEmbedHostThere ? std::optional(TrayProtocol::XEmbed) : std::nullopt;
}

TrayHosts::TrayHosts(const QDBusConnection& bus)
    : m_hasBus(bus.isConnected()),
      m_statusNotifier(bus) {
    connect(&m_statusNotifier, &StatusNotifierHosts::changed, this, &TrayHosts::update);
    connect(&m_xEmbed, &XEmbedHosts::changed, this, &TrayHosts::update);
    connect(&m_xEmbed, &XEmbedHosts::textColorChanged, this, &TrayHosts::textColorChanged);
    update();
}

bool TrayHosts::arePossible() const {
    return m_hasBus || m_xEmbed.isPossible();
}

void TrayHosts::update() {
    if (!m_protocol)
        m_protocol = protocolFor(m_statusNotifier.presence(), m_xEmbed.isThere());
    const bool areThere = isServed();
    if (std::exchange(m_areThere, areThere) == areThere)
        return;
    qCInfo(
        lcTray, "%s: %s", nameOf(*m_protocol), areThere ? "there is a host" : "no host any more");
    Q_EMIT changed();
}

bool TrayHosts::isServed() const {
    if (!m_protocol)
        return false;
    return *m_protocol == TrayProtocol::XEmbed ? m_xEmbed.isThere()
                                               : m_statusNotifier.presence() == Presence::Present;
}

} // namespace quorvane
