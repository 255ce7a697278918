// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <testing/FakePasteboard.h>

#include <memory>
#include <vector>

namespace quorvane {

/// A pasteboard whose other owners never answer, and where another program copies whenever a call
/// fails that only another owner can make fail.
class FaultyPasteboard final : public Pasteboard {
public:
    FaultyPasteboard(std::unique_ptr<FakePasteboard> real, FaultPlan& plan, MainQueue& queue);
    ~FaultyPasteboard() override;

    FaultyPasteboard(const FaultyPasteboard&) = delete;
    FaultyPasteboard& operator=(const FaultyPasteboard&) = delete;

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

    /// What the other program copies.
    [[nodiscard]] static PasteboardContents copiedMeanwhile();

private:
    [[nodiscard]] std::unique_ptr<PasteboardRequest> nothingRead(TextHandler done);

    std::unique_ptr<FakePasteboard> m_real;
    FaultPlan& m_plan;
    MainQueue& m_queue;
    std::vector<Deadline> m_answers;
};

} // namespace quorvane
