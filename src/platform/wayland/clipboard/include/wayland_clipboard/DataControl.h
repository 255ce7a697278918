// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>
#include <wayland_clipboard/DataDevice.h>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSeats.h>

namespace quorvane {

/// The clipboards of the user's seat by whichever extension the compositor has, as that and the
/// seat come and go.
class DataControl {
public:
    struct Handlers {
        std::function<void(WaylandClipboard, std::shared_ptr<DataOffer>)> offered;
        /// The device has gone, and with it what we offered; another one may be there.
        std::function<void()> deviceChanged;
    };

    /// The names of the extensions, the better one first.
    [[nodiscard]] static const std::vector<std::string_view>& interfaces();

    DataControl(
        std::shared_ptr<WaylandConnection> connection,
        std::shared_ptr<WaylandSeats> seats,
        Handlers handlers);
    ~DataControl();

    DataControl(const DataControl&) = delete;
    DataControl& operator=(const DataControl&) = delete;

    /// Null while the compositor has none, and when the connection is lost.
    [[nodiscard]] DataDevice* device() const;

private:
    using MakeDevice = std::function<std::unique_ptr<DataDevice>(wl_seat*, DataDevice::Handlers)>;

    struct Manager {
        std::uint32_t global = 0;
        MakeDevice makeDevice;
    };

    template <typename Protocol>
    void follow(std::vector<Manager>& managers);
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
