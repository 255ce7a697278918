// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>
#include <x11_clipboard/X11ClipboardHandOver.h>
#include <x11_clipboard/X11ClipboardLoan.h>
#include <x11_clipboard/X11PasteboardSave.h>
#include <x11_clipboard/X11SelectionInbox.h>
#include <x11_clipboard/X11SelectionOwner.h>
#include <x11_server/X11ServerClock.h>
#include <x11_windows/X11Windows.h>

#include <QClipboard>

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
    X11Pasteboard(std::shared_ptr<X11Connection> connection, MainQueue& queue);

    void save(SaveHandler done) override;
    void clear() override;
    void setString(const QString& text, TextStay stay) override;
    void write(const PasteboardItem& item, const std::optional<PasteboardItem>& selection) override;
    void handOver(std::function<void()> done) override;

private:
    using Saves = std::list<std::unique_ptr<X11PasteboardSave>>;
    using HandOvers = std::list<std::unique_ptr<X11ClipboardHandOver>>;

    [[nodiscard]] bool frontWindowPastesFromPrimary() const;
    [[nodiscard]] X11PasteboardSave::Source
    sourceOf(const X11SelectionOwner& owner, QClipboard::Mode mode) const;
    [[nodiscard]] bool hasClipboardManager() const;
    void put(std::optional<PasteboardItem> clipboard, std::optional<PasteboardItem> primary);
    void finishClearing();

    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_queue;
    X11Windows m_windows;
    X11ServerClock m_clock;
    X11SelectionInbox m_inbox;
    X11SelectionOwner m_clipboard;
    X11SelectionOwner m_primary;
    X11ClipboardLoan m_loan;
    bool m_isClearing = false;
    Deadline m_clearing;
    Saves m_saves;
    HandOvers m_handOvers;
};

} // namespace quorvane
