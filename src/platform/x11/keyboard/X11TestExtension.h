// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

namespace quorvane {

/// Whether the server lets its clients type: it has the XTEST extension, and answers to it.
[[nodiscard]] bool hasTestExtension(const X11Connection& connection);

} // namespace quorvane
