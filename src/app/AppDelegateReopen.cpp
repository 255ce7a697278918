// SPDX-License-Identifier: MIT
#include <app/AppDelegate.h>

namespace quorvane {

void AppDelegate::surfaceMainUIForReopen() {
    // While it is shown, what is in front is the interface itself.
    if (!isPanelVisible())
        m_previousFrontmostApp = m_environment.platform.workspace->frontmostApplication();
    present();
}

} // namespace quorvane
