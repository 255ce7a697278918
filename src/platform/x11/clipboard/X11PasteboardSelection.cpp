// SPDX-License-Identifier: MIT
#include "X11PlainText.h"
#include "X11QtClipboard.h"

#include <x11_clipboard/X11PasteboardSelection.h>
#include <x11_clipboard/X11TextReading.h>
#include <x11_server/QtX11.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcSelection, "quorvane.pasteboard.selection", QtFatalMsg)

// An owner that is asked whether it holds the passing text.
constexpr Seconds longestQuestion{0.3};

/// A handler that is called in a later event-loop iteration.
class DueRequest final : public PasteboardRequest {
public:
    explicit DueRequest(Deadline due) : m_due(std::move(due)) {}

private:
    Deadline m_due;
};

} // namespace

X11PasteboardSelection::X11PasteboardSelection(
    X11SelectionInbox& inbox,
    const X11ServerClock& clock,
    X11SelectionDelivery& delivery,
    xcb_atom_t selection,
    QClipboard::Mode mode)
    : m_inbox(inbox),
      m_clock(clock),
      m_mode(mode),
      m_owner(inbox.connection(), inbox.queue(), clock, delivery, selection) {
}

X11SelectionSource X11PasteboardSelection::source() const {
    const auto selection = m_owner.selection();
    const auto window = ownerWindow();
    if (const auto* content = m_owner.content();
        content != nullptr && m_inbox.connection()->owns(window))
        return {selection, content->item()};
    if (window == XCB_WINDOW_NONE)
        return {selection, PasteboardItem{}};
    if (qtx11::owns(window))
        return {selection, qtx11::clipboardItem(m_mode)};
    return {selection, std::nullopt};
}

bool X11PasteboardSelection::isPassing(const PasteboardItem& item) const {
    return m_passing && (isOurs(ownerWindow()) || textOf(item) == m_passing);
}

bool X11PasteboardSelection::copy(const QString& text) {
    m_passing.reset();
    return m_owner.own(plainTextItem(text, TextStay::Lasting));
}

bool X11PasteboardSelection::pass(const QString& text, xcb_window_t target) {
    // A window of ours that is slow is slow with everything else, too: it cannot come too late.
    const auto reader = qtx11::owns(target) ? xcb_window_t{XCB_WINDOW_NONE} : target;
    const bool isTaken = m_owner.pass(plainTextItem(text, TextStay::Passing), reader);
    m_passing = isTaken ? std::optional(text) : std::nullopt;
    return isTaken;
}

void X11PasteboardSelection::empty() {
    m_passing.reset();
    m_owner.empty();
}

std::unique_ptr<PasteboardRequest>
X11PasteboardSelection::restore(PasteboardItem item, std::function<void()> done) {
    // The server refuses what is older than a new owner, who may come between the two questions.
    const auto time = m_clock.now();
    const auto window = ownerWindow();
    const bool isForeign = window != XCB_WINDOW_NONE && !isOurs(window) && !qtx11::owns(window);
    if (m_passing && isForeign)
        return askManager(std::move(item), time, std::move(done));
    if (m_passing && isOurs(window))
        giveBack(std::move(item), time);
    m_passing.reset();
    return std::make_unique<DueRequest>(m_inbox.queue().after(Seconds(0), std::move(done)));
}

// The server knows of an owner after us before we do.
xcb_window_t X11PasteboardSelection::ownerWindow() const {
    return m_inbox.connection()->selectionOwner(m_owner.selection());
}

/// What a text field of ours has copied is the user's; what we have lent to Qt is not.
bool X11PasteboardSelection::isOurs(xcb_window_t window) const {
    if (m_inbox.connection()->owns(window))
        return m_owner.content() != nullptr;
    return m_mode == QClipboard::Clipboard && qtx11::owns(window) && qtx11::lentData() != nullptr;
}

void X11PasteboardSelection::giveBack(PasteboardItem item, xcb_timestamp_t time) {
    if (!m_owner.takeBack(std::move(item), time))
        qCDebug(lcSelection, "selection %u has a new owner", m_owner.selection());
}

std::unique_ptr<PasteboardRequest> X11PasteboardSelection::askManager(
    PasteboardItem item, xcb_timestamp_t time, std::function<void()> done) {
    const X11TextReading::Limits limits{
        longestQuestion, longestQuestion, m_passing->toUtf8().size()};
    return std::make_unique<X11TextReading>(
        m_inbox,
        X11SelectionSource{m_owner.selection(), std::nullopt},
        time,
        limits,
        [this, item = std::move(item), time, done = std::move(done)](
            const std::optional<QString>& text) {
            if (text && text == m_passing)
                giveBack(item, time);
            m_passing.reset();
            done();
        });
}

} // namespace quorvane
