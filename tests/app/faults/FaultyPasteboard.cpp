// SPDX-License-Identifier: MIT
#include "FaultyPasteboard.h"

#include <utility>

namespace quorvane {

namespace {

// The longest that the seam allows.
constexpr Seconds longest{1};

class LateAnswer final : public PasteboardRequest {
public:
    explicit LateAnswer(Deadline answer) : m_answer(std::move(answer)) {}

private:
    Deadline m_answer;
};

} // namespace

FaultyPasteboard::FaultyPasteboard(
    std::unique_ptr<FakePasteboard> real, FaultPlan& plan, MainQueue& queue)
    : m_real(std::move(real)),
      m_plan(plan),
      m_queue(queue) {
}

FaultyPasteboard::~FaultyPasteboard() = default;

PasteboardContents FaultyPasteboard::copiedMeanwhile() {
    return plainText(QStringLiteral("copied meanwhile"));
}

void FaultyPasteboard::save(PasteSource source, SaveHandler done) {
    if (!m_plan.strikes("Pasteboard::save"))
        return m_real->save(source, std::move(done));
    m_answers.push_back(m_queue.after(longest, [done = std::move(done)] { done({}); }));
}

void FaultyPasteboard::clear() {
    if (!m_plan.strikes("Pasteboard::clear"))
        m_real->clear();
}

PutOutcome FaultyPasteboard::setString(const QString& text, TextStay stay, PasteSource source) {
    const bool isRefused = m_plan.strikes("Pasteboard::setString");
    m_real->setRefusing(isRefused);
    const auto outcome = m_real->setString(text, stay, source);
    m_real->setRefusing(false);
    if (isRefused)
        m_real->setContents(copiedMeanwhile());
    return outcome;
}

std::unique_ptr<PasteboardRequest> FaultyPasteboard::restore(
    PasteboardItem item, std::optional<PasteboardItem> selection, std::function<void()> done) {
    if (m_plan.strikes("Pasteboard::restore"))
        m_real->setContents(copiedMeanwhile());
    return m_real->restore(std::move(item), std::move(selection), std::move(done));
}

std::unique_ptr<PasteboardRequest>
FaultyPasteboard::readText(PasteSource source, TextHandler done) {
    return m_plan.strikes("Pasteboard::readText") ? nothingRead(std::move(done))
                                                  : m_real->readText(source, std::move(done));
}

std::unique_ptr<PasteboardRequest> FaultyPasteboard::readDraggedText(TextHandler done) {
    return m_plan.strikes("Pasteboard::readDraggedText") ? nothingRead(std::move(done))
                                                         : m_real->readDraggedText(std::move(done));
}

void FaultyPasteboard::handOver(std::function<void()> done) {
    if (m_plan.strikes("Pasteboard::handOver"))
        m_answers.push_back(m_queue.after(longest, std::move(done)));
    else
        m_real->handOver(std::move(done));
}

std::unique_ptr<PasteboardRequest> FaultyPasteboard::nothingRead(TextHandler done) {
    return std::make_unique<LateAnswer>(
        m_queue.after(longest, [done = std::move(done)] { done(std::nullopt); }));
}

} // namespace quorvane
