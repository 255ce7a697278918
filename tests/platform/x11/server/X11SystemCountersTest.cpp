// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <X11SystemCounters.h>
#include <cstring>
#include <string>
#include <vector>

namespace quorvane {
namespace {

void append(std::vector<std::byte>& list, std::uint32_t counter, const std::string& name) {
    const auto start = list.size();
    const auto length = static_cast<std::uint16_t>(name.size());
    list.resize(start + (14 + name.size() + 3) / 4 * 4);
    std::memcpy(list.data() + start, &counter, sizeof counter);
    std::memcpy(list.data() + start + 12, &length, sizeof length);
    std::memcpy(list.data() + start + 14, name.data(), name.size());
}

TEST(X11SystemCounters, AreFoundBehindNamesOfAnyLength) {
    for (const auto* before : {"IDLETIME", "DEVICEIDLETIME 9", "DEVICEIDLETIME 10", "A", ""}) {
        std::vector<std::byte> list;
        append(list, 7, before);
        append(list, 8, before);
        append(list, 9, "SERVERTIME");
        EXPECT_EQ(systemCounter(list, "SERVERTIME"), 9U) << before;
    }
}

TEST(X11SystemCounters, AreNotReadBeyondTheList) {
    std::vector<std::byte> list;
    append(list, 9, "SERVERTIME");
    list.resize(list.size() - 4);
    EXPECT_EQ(systemCounter(list, "SERVERTIME"), std::nullopt);
    EXPECT_EQ(systemCounter({}, "SERVERTIME"), std::nullopt);
    EXPECT_EQ(systemCounter(std::span(list).first(3), "SERVERTIME"), std::nullopt);
}

} // namespace
} // namespace quorvane
