// SPDX-License-Identifier: MIT
#include "WaylandPlainText.h"
#include "WaylandQtClipboard.h"

#include <algorithm>
#include <unistd.h>
#include <utility>
#include <wayland_clipboard/WaylandPasteboardSelection.h>
#include <wayland_clipboard/WaylandTextReading.h>

namespace quorvane {

namespace {

// An owner that is asked whether it holds the passing text.
constexpr Seconds longestQuestion{0.3};

QStringList typesOf(const PasteboardItem& item) {
    QStringList types;
    for (const auto& entry : item)
        types.append(entry.type);
    return types;
}

} // namespace

WaylandPasteboardSelection::WaylandPasteboardSelection(
    MainQueue& queue,
    DataControl& control,
    PipeWriting& writing,
    WaylandClipboard clipboard,
    QClipboard::Mode mode)
    : m_queue(queue),
      m_control(control),
      m_writing(writing),
      m_clipboard(clipboard),
      m_mode(mode) {
}

// While our source lives we are told of its own contents, and sometimes, between our request and
// its arrival, of what stood there before. A program that follows us cancels it first.
void WaylandPasteboardSelection::noteOffer(std::shared_ptr<DataOffer> offer) {
    if (m_own)
        return;
    m_offer = std::move(offer);
    if (m_offer)
        ++m_copies;
}

void WaylandPasteboardSelection::noteLoss() {
    m_own.reset();
    m_offer.reset();
}

WaylandSelectionSource WaylandPasteboardSelection::source() const {
    if (m_own)
        return {*m_own->item, nullptr};
    if (!m_offer)
        return {PasteboardItem{}, nullptr};
    if (auto item = qtWaylandItem(m_mode))
        return {*std::move(item), nullptr};
    return {std::nullopt, m_offer};
}

const PasteboardItem* WaylandPasteboardSelection::own() const {
    return m_own ? m_own->item.get() : nullptr;
}

bool WaylandPasteboardSelection::isPassing(const PasteboardItem& item) const {
    return m_passing && (m_own || textOf(item) == m_passing);
}

bool WaylandPasteboardSelection::copy(const QString& text) {
    m_passing.reset();
    return offer(waylandTextItem(text, TextStay::Lasting));
}

bool WaylandPasteboardSelection::pass(const QString& text) {
    const bool isTaken = offer(waylandTextItem(text, TextStay::Passing));
    m_passing = isTaken ? std::optional(text) : std::nullopt;
    return isTaken;
}

void WaylandPasteboardSelection::empty() {
    m_passing.reset();
    giveBack({});
}

std::unique_ptr<PasteboardRequest>
WaylandPasteboardSelection::restore(PasteboardItem item, std::function<void()> done) {
    if (m_passing && !m_own && m_offer)
        return askOwner(std::move(item), std::move(done));
    if (m_passing && m_own)
        giveBack(std::move(item));
    m_passing.reset();
    return nullptr;
}

bool WaylandPasteboardSelection::offer(PasteboardItem item) {
    auto* device = m_control.device();
    if (device == nullptr || !device->has(m_clipboard))
        return false;
    const auto types = typesOf(item);
    const auto shared = std::make_shared<const PasteboardItem>(std::move(item));
    auto source = device->makeSource(
        types,
        {[this, shared](const QString& type, int descriptor) { send(*shared, type, descriptor); },
         [this] {
             m_own.reset();
         }});
    device->select(m_clipboard, source.get());
    // The source before goes last: the clipboard is never empty in between.
    m_own = Own{std::move(source), shared};
    m_offer.reset();
    ++m_copies;
    return true;
}

void WaylandPasteboardSelection::giveBack(PasteboardItem item) {
    if (!item.empty()) {
        static_cast<void>(offer(std::move(item)));
        return;
    }
    if (auto* device = m_control.device(); device != nullptr && device->has(m_clipboard))
        device->select(m_clipboard, nullptr);
    noteLoss();
}

void WaylandPasteboardSelection::send(
    const PasteboardItem& item, const QString& type, int descriptor) {
    const auto entry = std::ranges::find(item, type, &PasteboardEntry::type);
    if (entry == item.end())
        ::close(descriptor);
    else
        m_writing.write(descriptor, entry->bytes);
}

std::unique_ptr<PasteboardRequest>
WaylandPasteboardSelection::askOwner(PasteboardItem item, std::function<void()> done) {
    const WaylandTextReading::Limits limits{
        longestQuestion, longestQuestion, m_passing->toUtf8().size()};
    return std::make_unique<WaylandTextReading>(
        m_queue,
        source(),
        limits,
        [this, item = std::move(item), asked = m_copies, done = std::move(done)](
            const std::optional<QString>& text) {
            if (text && text == m_passing && asked == m_copies)
                giveBack(item);
            m_passing.reset();
            done();
        });
}

} // namespace quorvane
