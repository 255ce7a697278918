// SPDX-License-Identifier: MIT
#pragma once

#include "DataControlProxy.h"

#include <platform_offers/DataDevice.h>

#include <memory>
#include <utility>
#include <wayland_server/WaylandConnection.h>

namespace quorvane {

template <typename Protocol>
class DataControlSource final : public DataSource {
public:
    DataControlSource(
        std::shared_ptr<WaylandConnection> connection,
        typename Protocol::Source* proxy,
        const QStringList& types,
        Handlers handlers)
        : m_connection(std::move(connection)),
          m_proxy(proxy),
          m_handlers(std::move(handlers)) {
        static constexpr typename Protocol::SourceListener events{send, cancelled};
        Protocol::listen(proxy, events, this);
        for (const auto& type : types)
            Protocol::offer(proxy, type.toUtf8().constData());
    }

    [[nodiscard]] typename Protocol::Source* proxy() const { return m_proxy.get(); }

private:
    static void
    send(void* data, typename Protocol::Source* /*proxy*/, const char* type, int descriptor) {
        static_cast<DataControlSource*>(data)->m_handlers.send(
            QString::fromUtf8(type), descriptor, [](bool) {});
    }

    static void cancelled(void* data, typename Protocol::Source* /*proxy*/) {
        // The handler may destroy the source.
        const auto handler = static_cast<DataControlSource*>(data)->m_handlers.cancelled;
        handler();
    }

    std::shared_ptr<WaylandConnection> m_connection;
    DataControlProxy<Protocol, typename Protocol::Source> m_proxy;
    Handlers m_handlers;
};

} // namespace quorvane
