// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <backends/Compositor.h>

namespace quorvane {

/// The platform that Qt is to run on.
enum class QtPlatform {
    Qts,  ///< the one that Qt takes by itself, or the user's own choice
    X11,  ///< XWayland, where that has what the compositor itself does not let programs have
    None, ///< the only one does not answer, and Qt would wait for it without a limit
};

/// A compositor that offers neither the clipboard, nor posted keys, nor layers offers windows of
/// X11 more than those of Wayland: a place, above others, on all virtual desktops, and the
/// clipboard at any time. So does KWin, as far as the place is concerned.
[[nodiscard]] QtPlatform
chooseQtPlatform(const Environment& environment, const Compositor& compositor);

/// Tells Qt, which reads it when the application object is made, of the choice.
class QtPlatformSetting {
public:
    explicit QtPlatformSetting(QtPlatform platform);

    /// To be called then: programs that we start choose for themselves.
    void settle();

private:
    bool m_isSet;
};

} // namespace quorvane
