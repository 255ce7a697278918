// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11PasteboardRestore.h>

#include <utility>

namespace quorvane {

X11PasteboardRestore::X11PasteboardRestore(
    X11PasteboardSelection& clipboard,
    PasteboardItem clipboardItem,
    X11PasteboardSelection& primary,
    std::optional<PasteboardItem> primaryItem,
    std::function<void()> done)
    : m_done(std::move(done)),
      m_open(primaryItem ? 2 : 1),
      m_clipboard(clipboard.restore(std::move(clipboardItem), [this] { finishOne(); })) {
    if (primaryItem)
        m_primary = primary.restore(*std::move(primaryItem), [this] { finishOne(); });
}

void X11PasteboardRestore::finishOne() {
    if (--m_open > 0)
        return;
    const auto done = std::move(m_done);
    done();
}

} // namespace quorvane
