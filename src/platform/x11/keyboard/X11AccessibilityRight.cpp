// SPDX-License-Identifier: MIT
#include <platform_x11/X11AccessibilityRight.h>
#include <platform_x11/X11TestExtension.h>

#include <utility>

namespace quorvane {

X11AccessibilityRight::X11AccessibilityRight(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
}

bool X11AccessibilityRight::isTrusted() const {
    return hasTestExtension(*m_connection);
}

} // namespace quorvane
