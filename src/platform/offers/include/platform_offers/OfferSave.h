// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PasteboardContents.h>
#include <platform_offers/DataDevice.h>
#include <platform_offers/OfferReading.h>

#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace quorvane {

/// Reads everything that another program offers, one type after the other.
class OfferSave {
public:
    using Done = std::function<void(PasteboardItem)>;

    /// An owner that sends nothing for this long is cut off.
    static constexpr Seconds longestSilence{0.3};

    /// Bytes in all.
    static constexpr qsizetype largestSave = 268'435'456;

    /// Calls `done` once, in a later event-loop iteration, with what was read, in the owner's
    /// order; it may destroy the save. Destroying it earlier gives up. A type that does not fit in
    /// what is left of `mostBytes` is dropped. The queue must outlive it.
    OfferSave(
        MainQueue& queue,
        std::shared_ptr<DataOffer> offer,
        Done done,
        qsizetype mostBytes = largestSave);

    OfferSave(const OfferSave&) = delete;
    OfferSave& operator=(const OfferSave&) = delete;

    /// Calls `done` now, with what was read until now.
    void finish();

private:
    void awaitProgress();
    void readNext();
    void take(const QString& type, std::optional<ForgottenBytes> bytes);

    MainQueue& m_queue;
    std::shared_ptr<DataOffer> m_offer;
    Done m_done;
    QStringList m_types;  ///< in the owner's order
    QStringList m_unread; ///< in the order of reading
    std::map<QString, ForgottenBytes> m_read;
    qsizetype m_bytesLeft;
    std::unique_ptr<OfferReading> m_reading;
    Deadline m_silence;
    Deadline m_begin;
};

} // namespace quorvane
