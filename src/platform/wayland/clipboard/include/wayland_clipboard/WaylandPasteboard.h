// SPDX-License-Identifier: MIT
#pragma once

#include <platform_offers/OfferPasteboard.h>

#include <memory>
#include <utility>
#include <wayland_clipboard/DataControl.h>

namespace quorvane {

/// The pasteboard by an extension for clipboard managers (data-control).
class WaylandPasteboard final : public OfferPasteboard {
public:
    /// The queue must outlive it.
    WaylandPasteboard(
        std::shared_ptr<WaylandConnection> connection,
        std::shared_ptr<WaylandSeats> seats,
        MainQueue& queue)
        : OfferPasteboard(
              std::make_shared<DataControl>(std::move(connection), std::move(seats)), queue) {}
};

} // namespace quorvane
