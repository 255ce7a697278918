// SPDX-License-Identifier: MIT
#include "X11TestExtension.h"

#include <utility>
#include <x11_keyboard/X11AccessibilityRight.h>

namespace quorvane {

X11AccessibilityRight::X11AccessibilityRight(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
}

bool X11AccessibilityRight::isTrusted() const {
    return hasTestExtension(*m_connection);
}

} // namespace quorvane
