// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>
#include <x11_clipboard/ClipboardKeeper.h>
#include <x11_clipboard/X11ClipboardHandOver.h>
#include <x11_clipboard/X11ClipboardLoan.h>
#include <x11_clipboard/X11CompositorHandOver.h>
#include <x11_clipboard/X11PasteboardSave.h>
#include <x11_clipboard/X11PasteboardSelection.h>
#include <x11_clipboard/X11SelectionInbox.h>
#include <x11_server/X11ServerClock.h>
#include <x11_windows/X11Windows.h>

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace quorvane {

/// The pasteboard as X11's selections: CLIPBOARD, and PRIMARY while a text passes into a window
/// that pastes from it.
class X11Pasteboard final : public Pasteboard {
public:
    /// The queue must outlive it.
    X11Pasteboard(
        std::shared_ptr<X11Connection> connection,
        MainQueue& queue,
        ClipboardKeeper keeper = ClipboardKeeper::Manager);

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
    [[nodiscard]] std::unique_ptr<PasteboardRequest> readDraggedText(TextHandler done) override;
    void handOver(std::function<void()> done) override;

private:
    using Saves = std::list<std::unique_ptr<X11PasteboardSave>>;
    using HandOvers = std::list<std::unique_ptr<X11ClipboardHandOver>>;

    /// Whose the contents of the selections are.
    struct Owners {
        xcb_window_t clipboard = XCB_WINDOW_NONE;
        xcb_window_t primary = XCB_WINDOW_NONE;
        xcb_timestamp_t ourSince = XCB_CURRENT_TIME; ///< as of when we took CLIPBOARD last
    };

    enum class Attempt { First, Last };

    void save(PasteSource source, Attempt attempt, SaveHandler done);
    void finishSave(PasteboardContents found, const SaveHandler& done) const;
    [[nodiscard]] Owners owners() const;
    [[nodiscard]] bool hasBeenCopiedSince(const Owners& before) const;
    [[nodiscard]] PutOutcome pass(const QString& text, PasteSource source);
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    read(const X11SelectionSource& source, TextHandler done);
    [[nodiscard]] bool isToBeHandedOver() const;
    [[nodiscard]] bool hasClipboardManager() const;
    void handOverToManager(std::function<void()> done);
    void handOverToCompositor(xcb_window_t compositor, std::function<void()> done);
    void finishClearing();

    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_queue;
    X11Windows m_windows;
    ClipboardKeeper m_keeper;
    X11ServerClock m_clock;
    X11SelectionInbox m_inbox;
    X11SelectionDelivery m_delivery;
    X11PasteboardSelection m_clipboard;
    X11PasteboardSelection m_primary;
    X11ClipboardLoan m_loan;
    bool m_isClearing = false;
    Deadline m_clearing;
    Saves m_saves;
    HandOvers m_handOvers;
    std::unique_ptr<X11CompositorHandOver> m_compositorHandOver;
};

} // namespace quorvane
