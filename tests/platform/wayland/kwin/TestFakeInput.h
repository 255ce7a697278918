// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestCompositor.h"

#include <string>
#include <vector>

struct wl_global;

namespace quorvane {

/// KWin's fake input, with the keys that came.
class TestFakeInput {
public:
    /// Puts it among the globals; the compositor must outlive it.
    explicit TestFakeInput(TestCompositor& compositor);

    /// Takes it away.
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
