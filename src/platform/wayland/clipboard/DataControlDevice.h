// SPDX-License-Identifier: MIT
#pragma once

#include "DataControlOffer.h"
#include "DataControlSource.h"

#include <memory>
#include <utility>
#include <wayland_server/WaylandSeats.h>

namespace quorvane {

/// The protocol is ExtDataControl or WlrDataControl: the same thing under two names.
template <typename Protocol>
class DataControlDevice final : public DataDevice {
public:
    using Manager = DataControlProxy<Protocol, typename Protocol::Manager>;

    DataControlDevice(
        std::shared_ptr<WaylandConnection> connection,
        std::shared_ptr<Manager> manager,
        wl_seat* seat,
        Handlers handlers)
        : m_connection(std::move(connection)),
          m_manager(std::move(manager)),
          m_proxy(Protocol::makeDevice(m_manager->get(), seat)),
          m_handlers(std::move(handlers)) {
        static constexpr typename Protocol::DeviceListener events{
            announced, selected, finished, primarySelected};
        Protocol::listen(m_proxy.get(), events, this);
    }

    [[nodiscard]] bool has(ClipboardKind clipboard) const override {
        return clipboard == ClipboardKind::General || Protocol::hasPrimary(m_proxy.get());
    }

    [[nodiscard]] std::unique_ptr<DataSource>
    makeSource(const QStringList& types, DataSource::Handlers handlers) override {
        return std::make_unique<DataControlSource<Protocol>>(
            m_connection, Protocol::makeSource(m_manager->get()), types, std::move(handlers));
    }

    void select(ClipboardKind clipboard, const DataSource* source) override {
        const auto* ours = static_cast<const DataControlSource<Protocol>*>(source);
        auto* proxy = ours != nullptr ? ours->proxy() : nullptr;
        if (clipboard == ClipboardKind::General)
            Protocol::select(m_proxy.get(), proxy);
        else
            Protocol::selectPrimary(m_proxy.get(), proxy);
        m_connection->flush();
    }

private:
    using Device = typename Protocol::Device;
    using Offer = typename Protocol::Offer;

    static void announced(void* data, Device* /*device*/, Offer* proxy) {
        auto& self = *static_cast<DataControlDevice*>(data);
        self.m_announced = std::make_shared<DataControlOffer<Protocol>>(self.m_connection, proxy);
    }

    static void selected(void* data, Device* /*device*/, Offer* proxy) {
        static_cast<DataControlDevice*>(data)->tell(ClipboardKind::General, proxy);
    }

    static void primarySelected(void* data, Device* /*device*/, Offer* proxy) {
        static_cast<DataControlDevice*>(data)->tell(ClipboardKind::Primary, proxy);
    }

    static void finished(void* data, Device* /*device*/) {
        // The handler may destroy the device.
        const auto handler = static_cast<DataControlDevice*>(data)->m_handlers.finished;
        handler();
    }

    // The offer of a selection is the one that was announced before it.
    void tell(ClipboardKind clipboard, const Offer* proxy) {
        auto offer = std::exchange(m_announced, nullptr);
        if (proxy == nullptr || (offer && offer->proxy() != proxy))
            offer.reset();
        m_handlers.offered(clipboard, std::move(offer));
    }

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<Manager> m_manager;
    DataControlProxy<Protocol, Device> m_proxy;
    Handlers m_handlers;
    std::shared_ptr<DataControlOffer<Protocol>> m_announced;
};

} // namespace quorvane
