// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform_offers/PipeWriting.h>

#include <functional>

namespace quorvane {

/// Waits, before the process ends, for the clipboard manager that keeps what we offer. None can be
/// asked to: those that there are read what is new by themselves, and nobody tells when they have.
class OfferHandOver {
public:
    /// A manager that has not begun by then does not come.
    static constexpr Seconds longestStart{0.2};
    static constexpr Seconds longestWait{1.0};

    /// Calls `done` once, in a later event-loop iteration; it may destroy this. Queue and writing
    /// must outlive it.
    OfferHandOver(MainQueue& queue, PipeWriting& writing, std::function<void()> done);
    ~OfferHandOver();

    OfferHandOver(const OfferHandOver&) = delete;
    OfferHandOver& operator=(const OfferHandOver&) = delete;

private:
    void finish();

    PipeWriting& m_writing;
    std::function<void()> m_done;
    Deadline m_start;
    Deadline m_end;
};

} // namespace quorvane
