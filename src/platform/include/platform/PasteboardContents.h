// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ForgottenBytes.h>

#include <QString>

#include <optional>
#include <vector>

namespace quorvane {

/// The data of one type, as the owner gave it.
struct PasteboardEntry {
    QString type;         ///< a MIME type, or the desktop's own name for a kind of data
    ForgottenBytes bytes; ///< in the byte order of the machine
    QString encoding;     ///< the wire type of the bytes, where the desktop tells one; else empty
    int unitBits = 8;     ///< the size of one unit: 8, 16 or 32

    friend bool operator==(const PasteboardEntry&, const PasteboardEntry&) = default;
};

/// One thing in several representations, in the owner's order.
using PasteboardItem = std::vector<PasteboardEntry>;

struct PasteboardContents {
    /// X11 and Wayland have one, or none; a desktop may hold several, as when files are copied.
    std::vector<PasteboardItem> items;

    /// What the desktop's second pasteboard (X11's PRIMARY) held, if the text has to pass through
    /// it too: some windows paste from nothing else.
    std::optional<PasteboardItem> selection;

    /// What stands on the pasteboard is the text of an insertion that has not been taken back yet,
    /// ours or a clipboard manager's copy of it.
    bool isPassing = false;
    bool selectionIsPassing = false; ///< the same of the second pasteboard

    friend bool operator==(const PasteboardContents&, const PasteboardContents&) = default;
};

} // namespace quorvane
