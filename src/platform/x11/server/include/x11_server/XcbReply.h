// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

namespace quorvane {

/// Frees what xcb hands out with malloc.
struct XcbFree {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply, event or error of xcb; empty where the request failed.
template <typename T>
using XcbReply = std::unique_ptr<T, XcbFree>;

} // namespace quorvane
