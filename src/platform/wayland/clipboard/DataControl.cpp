// SPDX-License-Identifier: MIT
#include "DataControlDevice.h"
#include "ExtDataControl.h"
#include "WlrDataControl.h"

#include <utility>
#include <wayland_clipboard/DataControl.h>

namespace quorvane {

const std::vector<std::string_view>& DataControl::interfaces() {
    static const std::vector<std::string_view> names{
        ExtDataControl::interface().name, WlrDataControl::interface().name};
    return names;
}

DataControl::DataControl(
    std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandSeats> seats)
    : m_connection(std::move(connection)),
      m_seats(std::move(seats)) {
    bindTo<ExtDataControl>(m_ext);
    bindTo<WlrDataControl>(m_wlr);
    m_followings.push_back(m_seats->whenChanged([this] { renewDevice(); }));
    m_followings.push_back(m_connection->whenLost([this] { m_handlers.deviceChanged(); }));
}

DataControl::~DataControl() = default;

DataDevice* DataControl::device() {
    return m_connection->isLost() ? nullptr : m_device.get();
}

std::shared_ptr<void> DataControl::whenSettled(std::function<void()> done) {
    return std::make_shared<WaylandSubscription>(m_connection->whenSettled(std::move(done)));
}

template <typename Protocol>
void DataControl::bindTo(std::vector<Manager>& managers) {
    using Device = DataControlDevice<Protocol>;
    const auto came = [this, &managers](const WaylandGlobal& global) {
        auto* proxy = m_connection->globals().bind<typename Protocol::Manager>(
            global, Protocol::interface(), Protocol::version);
        const auto shared =
            std::make_shared<typename Device::Manager>(typename Device::Manager(proxy));
        managers.push_back(
            {global.name, [this, shared](wl_seat* seat, DataDevice::Handlers handlers) {
                 return std::make_unique<Device>(m_connection, shared, seat, std::move(handlers));
             }});
        if (!m_device)
            makeDevice();
    };
    m_followings.push_back(m_connection->globals().follow(
        Protocol::interface().name, {came, [this, &managers](std::uint32_t global) {
                                         forget(managers, global);
                                     }}));
}

void DataControl::forget(std::vector<Manager>& managers, std::uint32_t global) {
    std::erase_if(managers, [global](const auto& manager) { return manager.global == global; });
    if (m_device && m_deviceManager == global)
        renewDevice();
}

const DataControl::Manager* DataControl::manager() const {
    if (!m_ext.empty())
        return &m_ext.front();
    return m_wlr.empty() ? nullptr : &m_wlr.front();
}

void DataControl::renewDevice() {
    if (m_device) {
        m_device.reset();
        m_handlers.deviceChanged();
    }
    makeDevice();
}

void DataControl::makeDevice() {
    auto* seat = m_seats->first();
    const auto* from = manager();
    if (seat == nullptr || from == nullptr)
        return;
    m_deviceManager = from->global;
    m_device = from->makeDevice(
        seat,
        {[this](ClipboardKind clipboard, std::shared_ptr<DataOffer> offer) {
             m_handlers.offered(clipboard, std::move(offer));
         },
         [this] {
             m_device.reset();
             m_handlers.deviceChanged();
         }});
}

} // namespace quorvane
