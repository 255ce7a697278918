// SPDX-License-Identifier: MIT
#pragma once

#include <platform_offers/DataDevice.h>

#include <functional>
#include <memory>

namespace quorvane {

/// Who passes contents from program to program: a compositor, or the portal. Its device comes and
/// goes.
class DataExchange {
public:
    struct Handlers {
        /// As the device tells it.
        std::function<void(ClipboardKind, std::shared_ptr<DataOffer>)> offered =
            [](ClipboardKind, const std::shared_ptr<DataOffer>&) {
            };
        /// The device has gone, and with it what we offered; another one may be there.
        std::function<void()> deviceChanged = [] {
        };
    };

    virtual ~DataExchange() = default;

    /// Who is told, from now on.
    virtual void follow(Handlers handlers) = 0;

    /// Null while there is none.
    [[nodiscard]] virtual DataDevice* device() = 0;

    /// Calls `done` in a later iteration of the event loop, when all that other programs have
    /// copied until now was told to us. Never if nobody answers, or what this returns is dropped.
    [[nodiscard]] virtual std::shared_ptr<void> whenSettled(std::function<void()> done) = 0;
};

} // namespace quorvane
