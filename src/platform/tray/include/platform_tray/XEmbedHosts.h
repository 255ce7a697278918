// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QObject>

#include <cstdint>
#include <optional>

namespace quorvane {

/// Whether there is a host on the X server that embeds icons: the owner of a
/// selection (freedesktop.org's System Tray Protocol Specification). Watched on Qt's connection, on
/// which the icons are shown too. There is never one where Qt does not draw on
/// X11.
class XEmbedHosts final : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    XEmbedHosts();
    ~XEmbedHosts() override;

    /// Whether there is an X server that could have a host.
    [[nodiscard]] bool isPossible() const { return m_selection.has_value(); }

    [[nodiscard]] bool isThere() const { return m_isThere; }

    /// The colour that the host's bar writes in (_NET_SYSTEM_TRAY_COLORS); none where there is no
    /// host, or one that does not tell.
    [[nodiscard]] std::optional<QColor> textColor() const;

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

Q_SIGNALS:
    /// In an iteration of the event loop of its own, not while Qt filters events.
    void changed();

    /// textColor() may have become another; likewise.
    void textColorChanged();

private:
    struct Selection {
        std::uint32_t atom;
        std::uint8_t notice; ///< the number of the event that tells of a new owner, or of none
    };

    void follow();
    void watchHost(std::uint32_t window);

    std::optional<Selection> m_selection;
    bool m_isThere = false;
    std::uint32_t m_host = 0;   ///< its window, none if 0
    std::uint32_t m_colors = 0; ///< the name of the property that tells the bar's colours
};

} // namespace quorvane
