// SPDX-License-Identifier: MIT
#include "X11SystemCounters.h"

#include <algorithm>
#include <cstring>

namespace quorvane {

namespace {

// On the wire: the counter, its resolution in eight bytes, the length of the name, the name at
// once.
constexpr std::size_t lengthOffset = 12;
constexpr std::size_t nameOffset = 14;
constexpr std::size_t alignment = 4;

template <typename Number>
Number numberAt(std::span<const std::byte> data, std::size_t offset) {
    Number number{};
    std::memcpy(&number, data.data() + offset, sizeof number);
    return number;
}

} // namespace

std::optional<std::uint32_t> systemCounter(std::span<const std::byte> list, std::string_view name) {
    while (list.size() >= nameOffset) {
        const auto end = nameOffset + numberAt<std::uint16_t>(list, lengthOffset);
        if (end > list.size())
            return std::nullopt;
        const std::string_view found(
            reinterpret_cast<const char*>(list.data()) + nameOffset, end - nameOffset);
        if (found == name)
            return numberAt<std::uint32_t>(list, 0);
        const auto next = (end + alignment - 1) / alignment * alignment;
        list = list.subspan(std::min(next, list.size()));
    }
    return std::nullopt;
}

} // namespace quorvane
