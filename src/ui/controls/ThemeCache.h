// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>

namespace quorvane {

/// The themes of the last few palettes. A palette gets another key with each change, so that no
/// theme can be out of date.
class ThemeCache {
public:
    using Derive = std::function<Theme(const QPalette&)>;

    explicit ThemeCache(Derive derive) : m_derive(std::move(derive)) {}

    /// Valid until the next call.
    [[nodiscard]] const Theme& theme(const QPalette& palette) {
        const auto key = palette.cacheKey();
        const auto found = std::ranges::find_if(
            m_entries, [key](const auto& entry) { return entry && entry->paletteKey == key; });
        if (found != m_entries.end())
            return (*found)->theme;
        auto& oldest = m_entries.at(m_next);
        m_next = (m_next + 1) % m_entries.size();
        return oldest.emplace(Entry{key, m_derive(palette)}).theme;
    }

private:
    struct Entry {
        qint64 paletteKey;
        Theme theme;
    };

    Derive m_derive;
    std::array<std::optional<Entry>, 8> m_entries;
    std::size_t m_next = 0;
};

} // namespace quorvane
