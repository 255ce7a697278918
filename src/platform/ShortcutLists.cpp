// SPDX-License-Identifier: MIT
#include <platform/ShortcutLists.h>

#include <algorithm>

namespace quorvane {

void ShortcutLists::refresh() {
    for (const auto& list : m_lists)
        list->refresh();
}

void ShortcutLists::onChanged(std::function<void()> handler) {
    for (const auto& list : m_lists)
        list->onChanged(handler);
}

void ShortcutLists::onRebound(std::function<void(const KeyChord&)> handler) {
    for (const auto& list : m_lists)
        list->onRebound(handler);
}

DesktopShortcut& ShortcutLists::current() const {
    const auto hasEntry =
        std::ranges::find_if(m_lists, [](const auto& list) { return list->bound().has_value(); });
    if (hasEntry != m_lists.end())
        return **hasEntry;
    const auto isThere = std::ranges::find_if(
        m_lists, [](const auto& list) { return !list->desktopName().isEmpty(); });
    return isThere == m_lists.end() ? *m_lists.front() : **isThere;
}

} // namespace quorvane
