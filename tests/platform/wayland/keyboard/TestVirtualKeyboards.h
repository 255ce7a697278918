// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestCompositor.h"

#include <string>
#include <vector>

struct wl_global;

namespace quorvane {

/// A compositor's virtual keyboards, with what was typed on them.
class TestVirtualKeyboards {
public:
    /// Puts the manager among the globals; the compositor must outlive it.
    explicit TestVirtualKeyboards(TestCompositor& compositor);

    /// Takes the manager away.
    void withdraw();

    /// What has come so far, a line for each request.
    [[nodiscard]] std::vector<std::string> requests();

private:
    struct Server;

    TestCompositor& m_compositor;
    wl_global* m_global = nullptr;
    std::vector<std::string> m_requests;
};

} // namespace quorvane
