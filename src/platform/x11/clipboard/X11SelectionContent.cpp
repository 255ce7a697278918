// SPDX-License-Identifier: MIT
#include "X11PlainText.h"

#include <x11_clipboard/X11SelectionContent.h>

#include <utility>

namespace quorvane {

X11SelectionContent::X11SelectionContent(const X11Connection& connection, PasteboardItem item)
    : m_item(std::move(item)) {
    QStringList names;
    for (const auto& entry : m_item)
        names << entry.type << (entry.encoding.isEmpty() ? entry.type : entry.encoding);
    const auto atoms = connection.atoms(names);
    for (std::size_t i = 0; i < m_item.size(); ++i) {
        const auto& entry = m_item[i];
        const auto target = atoms[2 * i];
        m_targets.push_back(target);
        m_values[target] = {atoms[2 * i + 1], entry.unitBits, entry.bytes};
        if (isPlainText(entry.type))
            m_texts.insert(target);
    }
}

std::optional<X11PropertyValue> X11SelectionContent::value(xcb_atom_t target) const {
    const auto known = m_values.find(target);
    return known == m_values.end() ? std::nullopt : std::optional(known->second);
}

} // namespace quorvane
