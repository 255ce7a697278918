// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestCompositor.h"

#include <cstdint>
#include <string>
#include <vector>

struct wl_global;
struct wl_resource;

namespace quorvane {

/// A compositor's list of windows, for the one program that asks.
class TestToplevels {
public:
    enum State : std::uint32_t { Maximised, Minimised, Activated };

    /// Puts the list among the globals; the compositor must outlive it.
    explicit TestToplevels(TestCompositor& compositor);

    /// Adds a window, once a program has asked for the list, and returns its number.
    std::size_t add(const std::string& appId, std::vector<std::uint32_t> states = {});

    void setStates(std::size_t window, std::vector<std::uint32_t> states);
    void setParent(std::size_t window, std::size_t parent);
    void close(std::size_t window);
    void withdraw();

    /// The windows that were to be activated, in order.
    [[nodiscard]] std::vector<std::size_t> activations();

private:
    struct Server;

    void sendStates(wl_resource* window, std::vector<std::uint32_t> states);

    TestCompositor& m_compositor;
    wl_global* m_global = nullptr;
    wl_resource* m_manager = nullptr;
    std::vector<wl_resource*> m_windows;
    std::vector<std::size_t> m_activations;
};

} // namespace quorvane
