// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11CompositorHandOver.h>

#include <utility>

namespace quorvane {

X11CompositorHandOver::X11CompositorHandOver(
    MainQueue& queue,
    X11SelectionOwner& clipboard,
    xcb_window_t compositor,
    std::function<void()> done)
    : m_queue(queue),
      m_clipboard(clipboard),
      m_compositor(compositor),
      m_done(std::move(done)),
      m_end(queue.after(longestWait, [this] { finish(); })) {
    m_clipboard.onRead([this] { finishOnceRead(); });
    finishOnceRead();
}

X11CompositorHandOver::~X11CompositorHandOver() {
    m_clipboard.onRead([] {});
}

void X11CompositorHandOver::finishOnceRead() {
    if (m_clipboard.isReadBy(m_compositor))
        m_read = m_queue.after(Seconds(0), [this] { finish(); });
}

void X11CompositorHandOver::finish() {
    m_read.cancel();
    m_end.cancel();
    const auto done = std::move(m_done);
    done();
}

} // namespace quorvane
