// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <testing/CallLog.h>

#include <vector>

namespace quorvane {

/// A pasteboard that holds what the test, in the name of other programs, and the program put on it,
/// and knows whose it is. A save is answered after `saveDelay` on the virtual clock; the owner of
/// other contents answers at once, or never.
class FakePasteboard final : public Pasteboard {
public:
    FakePasteboard(CallLog& log, MainQueue& queue) : m_log(log), m_queue(queue) {}

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

    /// Of both pasteboards; no selection where the second one is empty.
    [[nodiscard]] PasteboardContents contents() const;

    /// Another program copies, and marks the selection if there is one.
    void setContents(PasteboardContents contents);

    /// Another program drags a text.
    void setDragged(const QString& text) { m_dragged = text; }

    /// A clipboard manager makes a copy of what stands there its own.
    void takeOverByManager();

    /// Whether other programs answer when they are asked for what they own.
    void setOthersAnswer(bool answer) { m_othersAnswer = answer; }

    /// Whether another program is always faster.
    void setRefusing(bool refusing) { m_refusing = refusing; }

    void setSaveDelay(Seconds delay) { m_saveDelay = delay; }

private:
    enum class Owner { Another, OursPassing, OursLasting };

    struct Board {
        std::vector<PasteboardItem> items;
        Owner owner = Owner::Another;
        std::optional<QString> passing; ///< the text whose restore is due

        [[nodiscard]] bool holdsPassing() const;
        void put(std::vector<PasteboardItem> contents, Owner by);
    };

    void restore(Board& board, PasteboardItem item) const;
    [[nodiscard]] bool mustAsk(const Board& board) const;

    CallLog& m_log;
    MainQueue& m_queue;
    Board m_clipboard;
    Board m_selection;
    std::optional<QString> m_dragged;
    Seconds m_saveDelay{0};
    bool m_othersAnswer = true;
    bool m_refusing = false;
    Deadline m_clearing;
    std::vector<Deadline> m_pending;
};

/// An entry of a plain kind.
[[nodiscard]] PasteboardEntry pasteboardEntry(const QString& type, const QByteArray& bytes);

/// Contents of one item with one plain text.
[[nodiscard]] PasteboardContents plainText(const QString& text);

} // namespace quorvane
