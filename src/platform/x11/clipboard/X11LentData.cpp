// SPDX-License-Identifier: MIT
#include "X11LentData.h"

#include "X11PlainText.h"

#include <utility>

namespace quorvane {

X11LentData::X11LentData(PasteboardItem item) : m_item(std::move(item)) {
    // Qt adds the target names for texts by itself.
    for (const auto& entry : m_item) {
        if (entry.unitBits == 8 && !isPlainText(entry.type))
            setData(entry.type, entry.bytes);
    }
    if (const auto text = textOf(m_item))
        setText(*text);
}

} // namespace quorvane
