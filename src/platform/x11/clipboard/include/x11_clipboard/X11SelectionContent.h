// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>
#include <x11_server/X11PropertyValue.h>

#include <map>
#include <optional>
#include <set>
#include <vector>

namespace quorvane {

/// What the owner of a selection has to offer: one item, its types as targets.
class X11SelectionContent {
public:
    X11SelectionContent(const X11Connection& connection, PasteboardItem item);

    [[nodiscard]] const PasteboardItem& item() const { return m_item; }

    /// In the item's order.
    [[nodiscard]] const std::vector<xcb_atom_t>& targets() const { return m_targets; }

    /// None for what is not among the targets.
    [[nodiscard]] std::optional<X11PropertyValue> value(xcb_atom_t target) const;

    /// Whether the target is one of a plain text.
    [[nodiscard]] bool isText(xcb_atom_t target) const { return m_texts.contains(target); }

private:
    PasteboardItem m_item;
    std::vector<xcb_atom_t> m_targets;
    std::map<xcb_atom_t, X11PropertyValue> m_values;
    std::set<xcb_atom_t> m_texts;
};

} // namespace quorvane
