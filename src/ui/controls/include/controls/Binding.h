// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// A value that a view shows and edits, and that someone else keeps: `get` gives it as it is now,
/// `set` is called with what the user has made of it.
template <typename Value>
struct Binding {
    std::function<Value()> get;
    std::function<void(Value)> set;
};

} // namespace quorvane
