// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <testing/CallLog.h>

#include <memory>

namespace quorvane {

/// A pasteboard that holds what the test and the program put on it. A save is answered after
/// `saveDelay` on the virtual clock.
class FakePasteboard final : public Pasteboard {
public:
    FakePasteboard(CallLog& log, MainQueue& queue) : m_log(log), m_queue(queue) {}

    void save(SaveHandler done) override;
    void clear() override;
    void setString(const QString& text, TextStay stay) override;
    void write(const PasteboardItem& item, const std::optional<PasteboardItem>& selection) override;
    void handOver(std::function<void()> done) override;

    [[nodiscard]] const PasteboardContents& contents() const { return m_contents; }

    void setContents(PasteboardContents contents) { m_contents = std::move(contents); }

    void setSaveDelay(Seconds delay) { m_saveDelay = delay; }

private:
    CallLog& m_log;
    MainQueue& m_queue;
    PasteboardContents m_contents;
    Seconds m_saveDelay{0};
    std::vector<Deadline> m_pending;
};

/// An entry of a plain kind.
[[nodiscard]] PasteboardEntry pasteboardEntry(const QString& type, const QByteArray& bytes);

/// Contents of one item with one plain text.
[[nodiscard]] PasteboardContents plainText(const QString& text);

} // namespace quorvane
