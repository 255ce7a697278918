// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Seconds.h>

/// The pauses of an insertion, in their order; each counts from the end of the one before. The
/// desktop tests have the same numbers in tests/desktop/harness/delays.py.
namespace quorvane::insertiondelay {

/// From hiding the interface to activating the other application: its windows have to be gone.
inline constexpr Seconds beforeActivation{0.08};

/// From there to the paste keys: the other application has to have taken the keyboard focus.
inline constexpr Seconds beforePaste{0.12};

/// From there to the restore of the pasteboard: an application may paste late.
inline constexpr Seconds beforeRestore{0.6};

} // namespace quorvane::insertiondelay
