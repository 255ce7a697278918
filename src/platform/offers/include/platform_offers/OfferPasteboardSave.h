// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <platform_offers/DataExchange.h>
#include <platform_offers/OfferSave.h>
#include <platform_offers/OfferSelection.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// One save of the pasteboard: of the clipboard, and of the primary selection where the text passes
/// through it, side by side.
class OfferPasteboardSave {
public:
    using Done = std::function<void(PasteboardContents, bool hasBeenCopiedMeanwhile)>;

    /// An exchange that does not catch up for this long is taken at what it told before.
    static constexpr Seconds longestSettling{0.3};
    static constexpr Seconds longestSave{1.0};

    /// Calls `done` once, in a later event-loop iteration, after longestSave at most; it may
    /// destroy the save. Destroying it earlier gives up. All but the handler must outlive it.
    OfferPasteboardSave(
        DataExchange& exchange,
        MainQueue& queue,
        const OfferSelection& clipboard,
        const OfferSelection* primary,
        Done done);

    OfferPasteboardSave(const OfferPasteboardSave&) = delete;
    OfferPasteboardSave& operator=(const OfferPasteboardSave&) = delete;

private:
    struct Part {
        const OfferSelection* selection = nullptr; ///< null for none
        std::uint64_t copiesBefore = 0;
        std::optional<PasteboardItem> item;
        std::unique_ptr<OfferSave> reading;
    };

    [[nodiscard]] static bool isRead(const Part& part);
    [[nodiscard]] static bool hasChanged(const Part& part);
    void begin();
    void begin(Part& part);
    void cutOff();
    void finishWhenRead();

    MainQueue& m_queue;
    Done m_done;
    Part m_clipboard;
    Part m_primary;
    bool m_isReading = false;
    std::shared_ptr<void> m_settling;
    Deadline m_settled;
    Deadline m_end;
};

} // namespace quorvane
