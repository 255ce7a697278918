// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Who keeps what CLIPBOARD holds when its owner ends.
enum class ClipboardKeeper {
    Manager,    ///< the owner of CLIPBOARD_MANAGER, if there is one, when it is asked to
    Compositor, ///< that of XWayland, where there is no manager: it reads by itself what is new
};

} // namespace quorvane
