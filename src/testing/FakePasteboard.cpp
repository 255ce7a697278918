// SPDX-License-Identifier: MIT
#include <testing/FakePasteboard.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

void FakePasteboard::save(SaveHandler done) {
    m_log.add("save");
    m_pending.push_back(
        m_queue.after(m_saveDelay, [this, done = std::move(done)] { done(m_contents); }));
}

void FakePasteboard::clear() {
    m_log.add("clear");
    m_contents = {};
}

void FakePasteboard::setString(const QString& text, TextStay stay) {
    const std::string how = stay == TextStay::Passing ? "passing" : "lasting";
    m_log.add("setString " + how + " \"" + text.toStdString() + "\"");
    m_contents = plainText(text);
}

void FakePasteboard::write(
    const PasteboardItem& item, const std::optional<PasteboardItem>& selection) {
    m_log.add("write");
    m_contents = {};
    if (!item.empty())
        m_contents.items.push_back(item);
    m_contents.selection = selection;
}

void FakePasteboard::handOver(std::function<void()> done) {
    m_log.add("handOver");
    m_queue.async(std::move(done));
}

PasteboardEntry pasteboardEntry(const QString& type, const QByteArray& bytes) {
    return {type, bytes, {}, 8};
}

PasteboardContents plainText(const QString& text) {
    return {{{pasteboardEntry(u"text/plain"_s, text.toUtf8())}}, std::nullopt};
}

} // namespace quorvane
