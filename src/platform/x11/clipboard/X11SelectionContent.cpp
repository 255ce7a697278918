// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11SelectionContent.h>

#include <utility>

namespace quorvane {

X11SelectionContent::X11SelectionContent(X11Connection& connection, PasteboardItem item)
    : m_item(std::move(item)) {
    for (const auto& entry : m_item) {
        const auto target = connection.atom(entry.type);
        const auto type = entry.encoding.isEmpty() ? target : connection.atom(entry.encoding);
        m_targets.push_back(target);
        m_values[target] = {type, entry.unitBits, entry.bytes};
    }
}

std::optional<X11PropertyValue> X11SelectionContent::value(xcb_atom_t target) const {
    const auto known = m_values.find(target);
    return known == m_values.end() ? std::nullopt : std::optional(known->second);
}

} // namespace quorvane
