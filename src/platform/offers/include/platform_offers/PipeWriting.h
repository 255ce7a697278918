// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/ForgottenBytes.h>

#include <functional>
#include <list>
#include <memory>
#include <utility>

class QSocketNotifier;

namespace quorvane {

/// What other programs are being given of the contents that we offer.
class PipeWriting {
public:
    /// Whether the other program has taken everything.
    using Ended = std::function<void(bool isWhole)>;

    /// More at the same time are refused.
    static constexpr std::size_t mostTransfers = 64;

    /// A program that takes nothing for this long gets no more.
    static constexpr Seconds longestSilence{10.0};

    /// The queue must outlive it.
    explicit PipeWriting(MainQueue& queue);
    ~PipeWriting();

    PipeWriting(const PipeWriting&) = delete;
    PipeWriting& operator=(const PipeWriting&) = delete;

    /// Writes the bytes into the file, as the other program takes them, and closes it. A program
    /// that closes it earlier has had enough. `ended` is called once, maybe before this returns;
    /// not after the writing has gone.
    void write(
        int descriptor, const ForgottenBytes& bytes, Ended ended = [](bool) {});

    /// Whether somebody is still taking something.
    [[nodiscard]] bool isIdle() const { return m_transfers.empty(); }

    /// Called whenever the last one has ended; replaces an earlier handler.
    void onIdle(std::function<void()> handler) { m_onIdle = std::move(handler); }

private:
    struct Transfer;
    using Place = std::list<std::unique_ptr<Transfer>>::iterator;

    void proceed(Place place);
    void awaitProgress(Place place);
    void end(Place place, bool isWhole);

    MainQueue& m_queue;
    std::list<std::unique_ptr<Transfer>> m_transfers;
    std::function<void()> m_onIdle = [] {
    };
};

} // namespace quorvane
