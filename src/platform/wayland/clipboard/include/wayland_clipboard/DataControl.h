// SPDX-License-Identifier: MIT
#pragma once

#include <platform_offers/DataExchange.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSeats.h>

namespace quorvane {

/// The clipboards of the user's seat by whichever extension the compositor has, as that and the
/// seat come and go.
class DataControl final : public DataExchange {
public:
    /// The names of the extensions, the better one first.
    [[nodiscard]] static const std::vector<std::string_view>& interfaces();

    DataControl(std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandSeats> seats);
    ~DataControl() override;

    DataControl(const DataControl&) = delete;
    DataControl& operator=(const DataControl&) = delete;

    /// Null while the compositor has none, and when the connection is lost.
    [[nodiscard]] DataDevice* device() override;

    void follow(Handlers handlers) override { m_handlers = std::move(handlers); }

    [[nodiscard]] std::shared_ptr<void> whenSettled(std::function<void()> done) override;

private:
    using MakeDevice = std::function<std::unique_ptr<DataDevice>(wl_seat*, DataDevice::Handlers)>;

    struct Manager {
        std::uint32_t global = 0;
        MakeDevice makeDevice;
    };

    template <typename Protocol>
    void bindTo(std::vector<Manager>& managers);
    void forget(std::vector<Manager>& managers, std::uint32_t global);
    [[nodiscard]] const Manager* manager() const;
    void renewDevice();
    void makeDevice();

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<WaylandSeats> m_seats;
    Handlers m_handlers;
    std::vector<Manager> m_ext;
    std::vector<Manager> m_wlr;
    std::unique_ptr<DataDevice> m_device;
    std::uint32_t m_deviceManager = 0; ///< the global that the device is of
    std::vector<WaylandSubscription> m_followings;
};

} // namespace quorvane
