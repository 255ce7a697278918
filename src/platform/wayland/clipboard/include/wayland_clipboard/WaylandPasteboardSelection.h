// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>

#include <QClipboard>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <wayland_clipboard/DataControl.h>
#include <wayland_clipboard/PipeWriting.h>
#include <wayland_clipboard/WaylandSelectionSource.h>

namespace quorvane {

/// One of the clipboards that the pasteboard consists of: whose contents stand there, and whether
/// they are a text of ours that is only passing.
class WaylandPasteboardSelection {
public:
    /// Queue, control and writing must outlive it.
    WaylandPasteboardSelection(
        MainQueue& queue,
        DataControl& control,
        PipeWriting& writing,
        WaylandClipboard clipboard,
        QClipboard::Mode mode);

    WaylandPasteboardSelection(const WaylandPasteboardSelection&) = delete;
    WaylandPasteboardSelection& operator=(const WaylandPasteboardSelection&) = delete;

    /// To be called when the compositor tells what stands there.
    void noteOffer(std::shared_ptr<DataOffer> offer);

    /// To be called when the device has gone by which we offer and read.
    void noteLoss();

    [[nodiscard]] WaylandSelectionSource source() const;

    /// Changes whenever something is copied, by anybody.
    [[nodiscard]] std::uint64_t copies() const { return m_copies; }

    /// What we offer; null where other contents stand there.
    [[nodiscard]] const PasteboardItem* own() const;

    /// Whether the item, which was just read here, is the passing text.
    [[nodiscard]] bool isPassing(const PasteboardItem& item) const;

    /// False where the compositor does not let us.
    [[nodiscard]] bool copy(const QString& text);

    /// The same with a text that is restored later.
    [[nodiscard]] bool pass(const QString& text);

    void empty();

    /// Puts the item in the place of the passing text, if that still stands there; see
    /// `Pasteboard::restore`. Null where that is decided already: `done` is not called then.
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    restore(PasteboardItem item, std::function<void()> done);

private:
    struct Own {
        std::unique_ptr<DataSource> source;
        std::shared_ptr<const PasteboardItem> item;
    };

    [[nodiscard]] bool offer(PasteboardItem item);
    void giveBack(PasteboardItem item);
    void send(const PasteboardItem& item, const QString& type, int descriptor);
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    askOwner(PasteboardItem item, std::function<void()> done);

    MainQueue& m_queue;
    DataControl& m_control;
    PipeWriting& m_writing;
    WaylandClipboard m_clipboard;
    QClipboard::Mode m_mode;
    std::optional<Own> m_own;
    std::shared_ptr<DataOffer> m_offer; ///< another program's; null where none is told
    std::optional<QString> m_passing;   ///< until it is restored, or seen to be replaced
    std::uint64_t m_copies = 0;
};

} // namespace quorvane
