// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>

namespace quorvane {

/// Every call of the seams, "KeyPoster::paste", read from their headers: what is declared there
/// later is in this list without anybody's doing.
[[nodiscard]] std::set<std::string> seamCalls();

} // namespace quorvane
