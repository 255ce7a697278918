// SPDX-License-Identifier: MIT
#pragma once

#include "DataControlProxy.h"

#include <platform_offers/DataDevice.h>

#include <memory>
#include <utility>
#include <wayland_server/WaylandConnection.h>

namespace quorvane {

template <typename Protocol>
class DataControlOffer final : public DataOffer {
public:
    DataControlOffer(std::shared_ptr<WaylandConnection> connection, typename Protocol::Offer* proxy)
        : m_connection(std::move(connection)),
          m_proxy(proxy) {
        static constexpr typename Protocol::OfferListener events{offered};
        Protocol::listen(proxy, events, this);
    }

    [[nodiscard]] const typename Protocol::Offer* proxy() const { return m_proxy.get(); }

    [[nodiscard]] QStringList types() const override { return m_types; }

    [[nodiscard]] std::unique_ptr<OfferReading>
    read(const QString& type, qsizetype mostBytes, PipeReading::Callbacks callbacks) override {
        return PipeReading::begin(
            [this, &type](int descriptor) {
                Protocol::receive(m_proxy.get(), type.toUtf8().constData(), descriptor);
                m_connection->flush();
            },
            mostBytes,
            std::move(callbacks));
    }

private:
    static void offered(void* data, typename Protocol::Offer* /*proxy*/, const char* type) {
        auto& self = *static_cast<DataControlOffer*>(data);
        if (self.m_types.size() < mostTypes)
            self.m_types.append(QString::fromUtf8(type));
    }

    std::shared_ptr<WaylandConnection> m_connection;
    DataControlProxy<Protocol, typename Protocol::Offer> m_proxy;
    QStringList m_types;
};

} // namespace quorvane
