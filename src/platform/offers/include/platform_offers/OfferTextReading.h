// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>
#include <platform_offers/OfferReading.h>
#include <platform_offers/OfferSource.h>

#include <QStringList>

#include <memory>
#include <optional>

namespace quorvane {

/// Reads one plain text from a clipboard.
class OfferTextReading final : public PasteboardRequest {
public:
    struct Limits {
        Seconds silence; ///< an owner that sends nothing for this long is cut off
        Seconds all;     ///< and in any case after this long
        qsizetype bytes; ///< a longer text counts as none
    };

    /// Calls `done` once, in a later event-loop iteration. The queue must outlive it.
    OfferTextReading(
        MainQueue& queue, OfferSource source, const Limits& limits, Pasteboard::TextHandler done);

private:
    void begin();
    void ask();
    void awaitProgress();
    void take(const QString& type, const std::optional<ForgottenBytes>& bytes);
    void finish(const std::optional<QString>& text);

    MainQueue& m_queue;
    OfferSource m_source;
    Limits m_limits;
    Pasteboard::TextHandler m_done;
    QStringList m_unasked;
    std::unique_ptr<OfferReading> m_reading;
    Deadline m_begin;
    Deadline m_silence;
    Deadline m_end;
};

} // namespace quorvane
