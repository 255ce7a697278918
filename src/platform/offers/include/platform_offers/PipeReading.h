// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ForgottenBytes.h>
#include <platform_offers/OfferReading.h>

#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// Reads what another program writes into a pipe, in pieces, between which the event loop turns. It
/// goes on for as long as that program likes: whoever makes it limits the time.
class PipeReading final : public OfferReading {
public:
    struct Callbacks {
        std::function<void()> progress;
        /// Once, with all that was written before the other end was closed; none if that is longer
        /// than the limit or cannot be read. May destroy the reading.
        std::function<void(std::optional<ForgottenBytes>)> done;
    };

    /// Null where the system gives no pipe. `hand` gets the end to write into, which is closed
    /// after it.
    [[nodiscard]] static std::unique_ptr<PipeReading>
    begin(const std::function<void(int)>& hand, qsizetype mostBytes, Callbacks callbacks);

    /// Reads from an end that somebody else has made, and closes it.
    [[nodiscard]] static std::unique_ptr<PipeReading>
    take(int descriptor, qsizetype mostBytes, Callbacks callbacks);

    /// Gives up: a program that still writes is told that nobody reads.
    ~PipeReading() override;

    PipeReading(const PipeReading&) = delete;
    PipeReading& operator=(const PipeReading&) = delete;

private:
    PipeReading(int descriptor, qsizetype mostBytes, Callbacks callbacks);

    void read();
    void finish(std::optional<ForgottenBytes> bytes);

    int m_descriptor;
    qsizetype m_mostBytes;
    Callbacks m_callbacks;
    ForgottenBytes m_bytes;
    QSocketNotifier m_notifier;
};

} // namespace quorvane
