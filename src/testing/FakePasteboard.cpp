// SPDX-License-Identifier: MIT
#include <testing/FakePasteboard.h>

#include <algorithm>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds longestSilence{0.3};

class FakeRequest final : public PasteboardRequest {
public:
    explicit FakeRequest(Deadline answer) : m_answer(std::move(answer)) {}

private:
    Deadline m_answer;
};

std::optional<QString> textIn(const std::vector<PasteboardItem>& items) {
    for (const auto& item : items) {
        const auto text = std::ranges::find(item, u"text/plain"_s, &PasteboardEntry::type);
        if (text != item.end())
            return QString::fromUtf8(text->bytes);
    }
    return std::nullopt;
}

} // namespace

bool FakePasteboard::Board::holdsPassing() const {
    switch (owner) {
    case Owner::OursPassing:
        return true;
    case Owner::OursLasting:
        return false;
    case Owner::Another:
        break;
    }
    return passing && textIn(items) == passing;
}

void FakePasteboard::Board::put(std::vector<PasteboardItem> contents, Owner by) {
    items = std::move(contents);
    owner = by;
}

void FakePasteboard::save(PasteSource source, SaveHandler done) {
    m_log.add("save");
    const bool isSilent = m_clipboard.owner == Owner::Another && !m_othersAnswer;
    const auto delay = isSilent ? longestSilence : m_saveDelay;
    m_pending.push_back(m_queue.after(delay, [this, source, done = std::move(done)] {
        PasteboardContents found;
        if (m_clipboard.owner != Owner::Another || m_othersAnswer) {
            found.isPassing = m_clipboard.holdsPassing();
            found.items = m_clipboard.items;
        }
        if (source == PasteSource::Selection) {
            found.selection = m_selection.items.empty() ? PasteboardItem{} : m_selection.items[0];
            found.selectionIsPassing = m_selection.holdsPassing();
        }
        done(std::move(found));
    }));
}

void FakePasteboard::clear() {
    m_log.add("clear");
    m_clearing = m_queue.after(Seconds(0), [this] { m_clipboard = {}; });
}

PutOutcome FakePasteboard::setString(const QString& text, TextStay stay, PasteSource source) {
    const std::string how = stay == TextStay::Passing ? "passing" : "lasting";
    m_log.add("setString " + how + " \"" + text.toStdString() + "\"");
    m_clearing.cancel();
    if (m_refusing)
        return PutOutcome::Refused;
    const auto items = plainText(text).items;
    if (stay == TextStay::Lasting) {
        m_clipboard.passing.reset();
        m_clipboard.put(items, Owner::OursLasting);
        return PutOutcome::Taken;
    }
    m_clipboard = {items, Owner::OursPassing, text};
    if (source == PasteSource::Selection)
        m_selection = {items, Owner::OursPassing, text};
    return PutOutcome::Taken;
}

std::unique_ptr<PasteboardRequest> FakePasteboard::restore(
    PasteboardItem item, std::optional<PasteboardItem> selection, std::function<void()> done) {
    m_log.add("restore");
    const bool waits = mustAsk(m_clipboard) || (selection && mustAsk(m_selection));
    const auto later = [this, item, selection, done = std::move(done)] {
        restore(m_clipboard, item);
        if (selection)
            restore(m_selection, *selection);
        done();
    };
    if (m_clipboard.owner == Owner::OursPassing)
        restore(m_clipboard, std::move(item));
    if (selection && m_selection.owner == Owner::OursPassing)
        restore(m_selection, *std::move(selection));
    return std::make_unique<FakeRequest>(
        m_queue.after(waits && !m_othersAnswer ? longestSilence : Seconds(0), later));
}

std::unique_ptr<PasteboardRequest> FakePasteboard::readText(PasteSource source, TextHandler done) {
    m_log.add("readText");
    const auto& board = source == PasteSource::Selection ? m_selection : m_clipboard;
    const bool isSilent = board.owner == Owner::Another && !m_othersAnswer;
    return std::make_unique<FakeRequest>(
        m_queue.after(isSilent ? longestSilence : m_saveDelay, [&board, isSilent, done] {
            const auto text = isSilent ? std::nullopt : textIn(board.items);
            done(text && text->toUtf8().size() <= longestText ? text : std::nullopt);
        }));
}

std::unique_ptr<PasteboardRequest> FakePasteboard::readDraggedText(TextHandler done) {
    m_log.add("readDraggedText");
    return std::make_unique<FakeRequest>(
        m_queue.after(m_othersAnswer ? m_saveDelay : longestSilence, [this, done] {
            done(m_othersAnswer ? m_dragged : std::nullopt);
        }));
}

void FakePasteboard::handOver(std::function<void()> done) {
    m_log.add("handOver");
    m_queue.async(std::move(done));
}

PasteboardContents FakePasteboard::contents() const {
    PasteboardContents both;
    both.items = m_clipboard.items;
    if (!m_selection.items.empty())
        both.selection = m_selection.items[0];
    return both;
}

void FakePasteboard::setContents(PasteboardContents contents) {
    m_clipboard.put(std::move(contents.items), Owner::Another);
    if (contents.selection)
        m_selection.put({*std::move(contents.selection)}, Owner::Another);
}

void FakePasteboard::takeOverByManager() {
    m_clipboard.owner = Owner::Another;
    m_selection.owner = Owner::Another;
}

void FakePasteboard::restore(Board& board, PasteboardItem item) const {
    const bool isKnown = board.owner != Owner::Another || m_othersAnswer;
    if (board.passing && isKnown && board.holdsPassing()) {
        board.items.clear();
        if (!item.empty())
            board.items.push_back(std::move(item));
        board.owner = Owner::OursLasting;
    }
    board.passing.reset();
}

bool FakePasteboard::mustAsk(const Board& board) const {
    return board.passing && board.owner == Owner::Another;
}

PasteboardEntry pasteboardEntry(const QString& type, const QByteArray& bytes) {
    return {type, bytes, {}, 8};
}

PasteboardContents plainText(const QString& text) {
    return {{{pasteboardEntry(u"text/plain"_s, text.toUtf8())}}, std::nullopt};
}

} // namespace quorvane
