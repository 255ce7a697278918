// SPDX-License-Identifier: MIT
#include <delivery/CopyText.h>

namespace quorvane {

PutOutcome copyText(Pasteboard& pasteboard, const QString& text) {
    pasteboard.clear();
    return pasteboard.setString(text, TextStay::Lasting, PasteSource::Clipboard);
}

} // namespace quorvane
