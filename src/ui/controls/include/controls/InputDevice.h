// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// What the user works with. Where nobody knows, it counts as the pointer.
enum class InputDevice { Keyboard, Pointer };

} // namespace quorvane
