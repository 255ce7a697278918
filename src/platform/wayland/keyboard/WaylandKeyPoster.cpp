// SPDX-License-Identifier: MIT
#include <QLoggingCategory>

#include <linux/input-event-codes.h>
#include <utility>
#include <vector>
#include <wayland_keyboard/WaylandKeyPoster.h>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcKeys, "quorvane.keys", QtFatalMsg)

std::vector<std::uint32_t> keysOf(PasteKeys keys) {
    switch (keys) {
    case PasteKeys::ControlV:
        return {KEY_LEFTCTRL, KEY_V};
    case PasteKeys::ControlShiftV:
        return {KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_V};
    case PasteKeys::ShiftInsert:
        return {KEY_LEFTSHIFT, KEY_INSERT};
    }
    return {};
}

} // namespace

WaylandKeyPoster::WaylandKeyPoster(
    std::shared_ptr<WaylandConnection> connection,
    std::shared_ptr<WaylandVirtualKeyboards> keyboards,
    MainQueue& queue,
    std::function<QStringList()> namesInFront)
    : m_connection(std::move(connection)),
      m_keyboards(std::move(keyboards)),
      m_queue(queue),
      m_namesInFront(std::move(namesInFront)) {
}

std::optional<PasteTarget> WaylandKeyPoster::pasteTarget() const {
    if (!m_keyboards->isAvailable())
        return std::nullopt;
    const auto names = m_namesInFront();
    qCDebug(lcKeys, "keys go to \"%ls\"", qUtf16Printable(names.join(u'/')));
    return pasteTargetFor(names);
}

void WaylandKeyPoster::paste(const PasteTarget& target, PostHandler done) {
    finish();
    auto* keyboard = m_keyboards->keyboard();
    if (keyboard == nullptr)
        return done(PostOutcome::Unavailable);
    keyboard->tap(keysOf(target.keys));
    m_done = std::move(done);
    m_taken = m_connection->whenSettled([this] { finish(); });
    m_end = m_queue.after(longestWait, [this] { finish(); });
}

void WaylandKeyPoster::finish() {
    m_taken = {};
    m_end.cancel();
    if (const auto done = std::exchange(m_done, {}))
        done(PostOutcome::Posted);
}

} // namespace quorvane
