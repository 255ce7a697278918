// SPDX-License-Identifier: MIT
#include <platform_qt/QtPasteboard.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// What is answered in a later iteration of the event loop.
class LaterAnswer final : public PasteboardRequest {
public:
    LaterAnswer(MainQueue& queue, MainQueue::Task answer)
        : m_answer(queue.after(Seconds(0), std::move(answer))) {}

private:
    Deadline m_answer;
};

std::optional<QString> textOf(PasteSource source) {
    auto* clipboard = QGuiApplication::clipboard();
    const bool isSelection = source == PasteSource::Selection;
    if (isSelection && !clipboard->supportsSelection())
        return std::nullopt;
    auto text = clipboard->text(isSelection ? QClipboard::Selection : QClipboard::Clipboard);
    if (text.isEmpty() || text.toUtf8().size() > Pasteboard::longestText)
        return std::nullopt;
    return text;
}

} // namespace

void QtPasteboard::save(PasteSource /*source*/, SaveHandler done) {
    m_mainQueue.async([done = std::move(done)] { done({}); });
}

// What follows replaces everything anyway.
void QtPasteboard::clear() {
}

PutOutcome QtPasteboard::setString(const QString& text, TextStay stay, PasteSource /*source*/) {
    if (m_access == Access::WithFocus && QGuiApplication::focusWindow() == nullptr)
        return PutOutcome::Refused;
    const QPointer data(new QMimeData);
    data->setText(text);
    if (stay == TextStay::Passing)
        data->setData(u"x-kde-passwordManagerHint"_s, "secret");
    auto* clipboard = QGuiApplication::clipboard();
    clipboard->setMimeData(data);
    // Qt gives back our own object as long as the clipboard is ours.
    return data && clipboard->mimeData() == data ? PutOutcome::Taken : PutOutcome::Refused;
}

std::unique_ptr<PasteboardRequest> QtPasteboard::restore(
    PasteboardItem /*item*/,
    std::optional<PasteboardItem> /*selection*/,
    std::function<void()> done) {
    return std::make_unique<LaterAnswer>(m_mainQueue, std::move(done));
}

std::unique_ptr<PasteboardRequest> QtPasteboard::readText(PasteSource source, TextHandler done) {
    return std::make_unique<LaterAnswer>(
        m_mainQueue, [source, done = std::move(done)] { done(textOf(source)); });
}

// Qt would wait for the program that drags, too, and long after the user has gone on.
std::unique_ptr<PasteboardRequest> QtPasteboard::readDraggedText(TextHandler done) {
    return std::make_unique<LaterAnswer>(
        m_mainQueue, [done = std::move(done)] { done(std::nullopt); });
}

void QtPasteboard::handOver(std::function<void()> done) {
    m_mainQueue.async(std::move(done));
}

} // namespace quorvane
