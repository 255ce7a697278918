// SPDX-License-Identifier: MIT
#include <delivery/CopyText.h>

namespace quorvane {

void copyText(Pasteboard& pasteboard, const QString& text) {
    pasteboard.clear();
    pasteboard.setString(text, TextStay::Lasting);
}

} // namespace quorvane
