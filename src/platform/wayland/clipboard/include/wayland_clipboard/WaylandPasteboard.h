// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <wayland_clipboard/DataControl.h>
#include <wayland_clipboard/PipeWriting.h>
#include <wayland_clipboard/WaylandClipboardHandOver.h>
#include <wayland_clipboard/WaylandPasteboardSave.h>
#include <wayland_clipboard/WaylandPasteboardSelection.h>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSeats.h>

namespace quorvane {

/// The pasteboard by an extension for clipboard managers (data-control), which works without the
/// focus; and the primary selection while a text passes into a window that pastes from it.
class WaylandPasteboard final : public Pasteboard {
public:
    /// The queue must outlive it.
    WaylandPasteboard(
        std::shared_ptr<WaylandConnection> connection,
        std::shared_ptr<WaylandSeats> seats,
        MainQueue& queue);

    void save(PasteSource source, SaveHandler done) override;
    void clear() override;
    [[nodiscard]] PutOutcome
    setString(const QString& text, TextStay stay, PasteSource source) override;
    [[nodiscard]] std::unique_ptr<PasteboardRequest> restore(
        PasteboardItem item,
        std::optional<PasteboardItem> selection,
        std::function<void()> done) override;
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    readText(PasteSource source, TextHandler done) override;
    /// None: what is dragged is told to the window below alone.
    [[nodiscard]] std::unique_ptr<PasteboardRequest> readDraggedText(TextHandler done) override;
    void handOver(std::function<void()> done) override;

private:
    using Saves = std::list<std::unique_ptr<WaylandPasteboardSave>>;

    enum class Attempt { First, Last };

    void save(PasteSource source, Attempt attempt, SaveHandler done);
    void finishSave(PasteboardContents found, const SaveHandler& done) const;
    [[nodiscard]] PutOutcome pass(const QString& text, PasteSource source);
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    read(WaylandSelectionSource source, TextHandler done);
    void finishClearing();

    std::shared_ptr<WaylandConnection> m_connection;
    MainQueue& m_queue;
    DataControl m_control;
    PipeWriting m_writing;
    WaylandPasteboardSelection m_clipboard;
    WaylandPasteboardSelection m_primary;
    bool m_isClearing = false;
    Deadline m_clearing;
    Saves m_saves;
    std::unique_ptr<WaylandClipboardHandOver> m_handOver;
};

} // namespace quorvane
