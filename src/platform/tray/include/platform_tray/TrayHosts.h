// SPDX-License-Identifier: MIT
#pragma once

#include <platform_tray/StatusNotifierHosts.h>
#include <platform_tray/XEmbedHosts.h>

#include <QObject>

#include <optional>

namespace quorvane {

/// How an icon reaches its host.
enum class TrayProtocol { StatusNotifierItem, XEmbed };

/// The protocol that fits the hosts; none while there is no host, and while it is unknown whether
/// there is a host of StatusNotifierItems.
[[nodiscard]] std::optional<TrayProtocol>
protocolFor(StatusNotifierHosts::Presence statusNotifierHosts, bool isXEmbedHostThere);

/// The hosts that may show our icon. Qt settles on a protocol when the first icon is made, and
/// stays with it as long as the process runs: so no icon is made before there is a host, and
/// afterwards only hosts of that protocol count.
class TrayHosts final : public QObject {
    Q_OBJECT

public:
    explicit TrayHosts(const QDBusConnection& bus);

    /// Whether there is a bus or a server that could have a host.
    [[nodiscard]] bool arePossible() const;

    /// Once the first host has come.
    [[nodiscard]] std::optional<TrayProtocol> protocol() const { return m_protocol; }

    /// Whether one is there now.
    [[nodiscard]] bool areThere() const { return m_areThere; }

    /// The colour that the bar writes in, as far as it tells. Panels that host both kinds of icons
    /// tell it in the way of XEmbed, and mean all of them.
    [[nodiscard]] std::optional<QColor> textColor() const { return m_xEmbed.textColor(); }

Q_SIGNALS:
    /// The first one has come, or the last one has gone.
    void changed();

    /// textColor() may have become another.
    void textColorChanged();

private:
    void update();
    [[nodiscard]] bool isServed() const;

    bool m_hasBus;
    StatusNotifierHosts m_statusNotifier;
    XEmbedHosts m_xEmbed;
    std::optional<TrayProtocol> m_protocol;
    bool m_areThere = false;
};

} // namespace quorvane
