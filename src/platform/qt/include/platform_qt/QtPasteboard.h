// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>

namespace quorvane {

/// The clipboard as Qt has it on every display, for where there is no better one. It takes texts
/// and reads them, but no dragged ones; it saves nothing and gives nothing back, so nothing should
/// be inserted through it.
///
/// Reading waits for the clipboard's owner, as QClipboard does.
class QtPasteboard final : public Pasteboard {
public:
    /// When a program may put something on the clipboard.
    enum class Access {
        Always,
        WithFocus, ///< Wayland: only while one of its windows has the keyboard
    };

    /// The queue must outlive the pasteboard.
    QtPasteboard(MainQueue& mainQueue, Access access) : m_mainQueue(mainQueue), m_access(access) {}

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
    MainQueue& m_mainQueue;
    Access m_access;
};

} // namespace quorvane
