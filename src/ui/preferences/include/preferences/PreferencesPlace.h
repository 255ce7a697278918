// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Where the preferences are opened at: as they were left, or where something is to be set up.
enum class PreferencesPlace { AsLeft, Shortcut, Typing };

} // namespace quorvane
