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

} // namespace

TextInserter::TextInserter(Dependencies dependencies)
    : m_dependencies(dependencies),
      m_savesWanted(std::make_shared<const bool>(true)) {
}

TextInserter::~TextInserter() = default;

void TextInserter::insert(const QString& text) {
    if (!m_dependencies.accessibilityRight.isTrusted()) {
        qCInfo(lcInsert, "dropped: the accessibility right is missing");
        m_dependencies.accessibilityRight.prompt();
        return;
    }
    const auto target = m_dependencies.keyPoster.pasteTarget();
    m_dependencies.pasteboard.save(
        [this, text, target, wanted = std::weak_ptr(m_savesWanted)](PasteboardContents saved) {
            if (!wanted.expired())
                paste(text, target, std::move(saved));
        });
}

void TextInserter::finish() {
    m_savesWanted = std::make_shared<const bool>(true);
    m_deadlines.cancelAll();
    for (const auto& [number, saved] : std::exchange(m_pending, {}))
        restore(saved);
}

// All in one iteration of the event loop: none of our own code can change the pasteboard between
// the save and the text.
void TextInserter::paste(const QString& text, const Target& target, PasteboardContents saved) {
    logContents("saved", mergedItem(saved.items), saved.selection);
    m_dependencies.pasteboard.clear();
    m_dependencies.pasteboard.setString(text, TextStay::Passing);
    post(target);
    scheduleRestore(std::move(saved));
}

void TextInserter::post(const Target& target) {
    if (!target) {
        qCInfo(lcInsert, "no paste keys: neither this keyboard nor this desktop has any");
        return;
    }
    switch (m_dependencies.keyPoster.paste(*target)) {
    case PostOutcome::Posted:
        break;
    case PostOutcome::NoSuchKey:
        qCInfo(lcInsert, "no paste keys: the keyboard has none that would do");
        break;
    case PostOutcome::Unavailable:
        qCInfo(lcInsert, "no paste keys: this desktop does not let us post any");
        break;
    }
}

void TextInserter::scheduleRestore(PasteboardContents saved) {
    const int number = m_nextRestore++;
    m_pending.emplace(number, std::move(saved));
    m_deadlines.run(m_dependencies.mainQueue, insertiondelay::beforeRestore, [this, number] {
        restore(m_pending.extract(number).mapped());
    });
}

void TextInserter::restore(const PasteboardContents& saved) {
    m_dependencies.pasteboard.clear();
    const auto item = mergedItem(saved.items);
    logContents("put back", item, saved.selection);
    if (!item.empty() || saved.selection)
        m_dependencies.pasteboard.write(item, saved.selection);
}

} // namespace quorvane
