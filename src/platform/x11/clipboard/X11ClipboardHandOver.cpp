// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11ClipboardHandOver.h>

#include <utility>

namespace quorvane {

namespace {

// It says that all is done, and nothing else.
constexpr qsizetype longestAnswer = 64;

} // namespace

X11ClipboardHandOver::X11ClipboardHandOver(
    X11SelectionInbox& inbox,
    MainQueue& queue,
    xcb_timestamp_t time,
    const std::vector<xcb_atom_t>& targets,
    std::function<void()> done)
    : m_done(std::move(done)),
      m_conversion(
          inbox,
          {inbox.connection()->atom("CLIPBOARD_MANAGER"),
           inbox.connection()->atom("SAVE_TARGETS"),
           time,
           longestAnswer,
           propertyValue(XCB_ATOM_ATOM, targets)},
          {[] {},
           [this](const auto&) {
               finish();
           }}),
      m_end(queue.after(longestWait, [this] { finish(); })) {
}

void X11ClipboardHandOver::finish() {
    const auto done = std::move(m_done);
    done();
}

} // namespace quorvane
