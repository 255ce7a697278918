// SPDX-License-Identifier: MIT
#include "MergedItem.h"

#include <delivery/InsertionDelays.h>
#include <delivery/TextInserter.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcInsert, "quorvane.insert", QtFatalMsg)

/// Types and sizes; never the contents, which are the user's.
QString summaryOf(const PasteboardItem& item) {
    QStringList entries;
    for (const auto& entry : item)
        entries.append(u"%1 (%2 bytes)"_s.arg(entry.type, QString::number(entry.bytes.size())));
    return entries.isEmpty() ? u"nothing"_s : entries.join(u", "_s);
}

void logContents(
    const char* action,
    const PasteboardItem& item,
    const std::optional<PasteboardItem>& selection) {
    if (!lcInsert().isDebugEnabled())
        return;
    qCDebug(lcInsert, "%s: %ls", action, qUtf16Printable(summaryOf(item)));
    if (selection)
        qCDebug(lcInsert, "%s, selection: %ls", action, qUtf16Printable(summaryOf(*selection)));
}

InsertionOutcome outcomeOf(PostOutcome outcome) {
    switch (outcome) {
    case PostOutcome::Posted:
        return InsertionOutcome::Posted;
    case PostOutcome::NoSuchKey:
        qCInfo(lcInsert, "no paste keys: the keyboard has none that would do");
        break;
    case PostOutcome::Unavailable:
        qCInfo(lcInsert, "no paste keys: this desktop does not let us post any");
        break;
    }
    return InsertionOutcome::NoKeys;
}

} // namespace

TextInserter::TextInserter(Dependencies dependencies)
    : m_dependencies(dependencies),
      m_stepsWanted(std::make_shared<const bool>(true)) {
}

TextInserter::~TextInserter() = default;

void TextInserter::insert(const QString& text, Done done) {
    if (!m_dependencies.accessibilityRight.isTrusted()) {
        qCInfo(lcInsert, "not typed: the accessibility right is missing");
        return done(InsertionOutcome::NoRight);
    }
    if (m_isUnderWay)
        m_waiting.push_back({text, std::move(done)});
    else
        begin({text, std::move(done)});
}

void TextInserter::finish(std::function<void()> done) {
    m_stepsWanted = std::make_shared<const bool>(true);
    m_isUnderWay = false;
    m_waiting.clear();
    m_restoreDue.cancel();
    if (m_saved)
        restore(std::move(done));
    else
        m_finished = m_dependencies.mainQueue.after(Seconds(0), std::move(done));
}

void TextInserter::begin(Request request) {
    m_restoreDue.cancel();
    m_restoring.reset();
    m_isUnderWay = true;
    const auto target = m_dependencies.keyPoster.pasteTarget();
    m_dependencies.pasteboard.save(
        target ? target->source : PasteSource::Clipboard,
        [this, request = std::move(request), target, wanted = std::weak_ptr(m_stepsWanted)](
            PasteboardContents found) {
            if (!wanted.expired())
                paste(request, target, std::move(found));
        });
}

// All in one iteration of the event loop, up to the first key: none of our own code can change the
// pasteboard between the save and the text.
void TextInserter::paste(const Request& request, const Target& target, PasteboardContents found) {
    m_saved = usersContents(std::move(found));
    logContents("saved", mergedItem(m_saved->items), m_saved->selection);
    m_dependencies.pasteboard.clear();
    const auto source = target ? target->source : PasteSource::Clipboard;
    if (m_dependencies.pasteboard.setString(request.text, TextStay::Passing, source) !=
        PutOutcome::Taken) {
        qCInfo(lcInsert, "no paste keys: the pasteboard does not take the text");
        return conclude(request, InsertionOutcome::NotTaken);
    }
    if (target)
        return post(request, *target);
    qCInfo(lcInsert, "no paste keys: neither this keyboard nor this desktop has any");
    conclude(request, InsertionOutcome::NoKeys);
}

void TextInserter::post(const Request& request, const PasteTarget& target) {
    m_dependencies.keyPoster.paste(
        target, [this, request, wanted = std::weak_ptr(m_stepsWanted)](PostOutcome outcome) {
            if (!wanted.expired())
                conclude(request, outcomeOf(outcome));
        });
}

void TextInserter::conclude(const Request& request, InsertionOutcome outcome) {
    m_isUnderWay = false;
    const auto stay =
        outcome == InsertionOutcome::NotTaken ? Seconds(0) : insertiondelay::beforeRestore;
    m_restoreDue = m_dependencies.mainQueue.after(stay, [this] { restore([] {}); });
    request.done(outcome);
    beginNext();
}

void TextInserter::beginNext() {
    if (m_isUnderWay || m_waiting.empty())
        return;
    auto next = std::move(m_waiting.front());
    m_waiting.pop_front();
    begin(std::move(next));
}

/// What was found, but where that is the text of the insertion before, what this had found.
PasteboardContents TextInserter::usersContents(PasteboardContents found) {
    auto before = std::exchange(m_saved, std::nullopt).value_or(PasteboardContents{});
    PasteboardContents users;
    users.items = std::move(found.isPassing ? before.items : found.items);
    // A second pasteboard that was not looked at still awaits its restore.
    const bool isTakenOver = !found.selection || found.selectionIsPassing;
    users.selection = std::move(isTakenOver ? before.selection : found.selection);
    return users;
}

void TextInserter::restore(std::function<void()> done) {
    const auto item = mergedItem(m_saved->items);
    logContents("put back", item, m_saved->selection);
    m_restoring =
        m_dependencies.pasteboard.restore(item, m_saved->selection, [this, done = std::move(done)] {
            m_saved.reset();
            done();
            m_restoring.reset();
        });
}

} // namespace quorvane
