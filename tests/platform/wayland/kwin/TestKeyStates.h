// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestCompositor.h"

#include <cstdint>
#include <set>
#include <vector>

struct wl_global;
struct wl_resource;

namespace quorvane {

/// KWin's states of keys: told when they are asked for, and all of them again after any change.
class TestKeyStates {
public:
    /// Puts it among the globals for good; the compositor must outlive it, and nobody ask after it.
    TestKeyStates(TestCompositor& compositor, int version);
    ~TestKeyStates();

    TestKeyStates(const TestKeyStates&) = delete;
    TestKeyStates& operator=(const TestKeyStates&) = delete;

    /// The user holds exactly these, by the interface's numbers.
    void hold(std::set<std::uint32_t> keys);

    /// How many programs are told of each change.
    [[nodiscard]] std::size_t listeners();

private:
    struct Server;

    TestCompositor& m_compositor;
    std::set<std::uint32_t> m_held;
    std::vector<wl_resource*> m_listeners;
};

} // namespace quorvane
