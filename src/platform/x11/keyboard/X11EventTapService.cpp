// SPDX-License-Identifier: MIT
#include "X11EventTap.h"

#include <x11_keyboard/X11EventTapService.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

X11EventTapService::X11EventTapService(
    std::shared_ptr<X11Connection> connection,
    MainQueue& mainQueue,
    std::shared_ptr<X11GrabbedKeys> grabbedKeys)
    : m_connection(std::move(connection)),
      m_mainQueue(mainQueue),
      m_grabbedKeys(std::move(grabbedKeys)) {
}

TapResult X11EventTapService::createTap(TapHandlers handlers) {
    if (!m_connection || xcb_connection_has_error(m_connection->xcb()) != 0)
        return TapFailure{u"there is no X server"_s};
    return std::make_unique<X11EventTap>(
        m_connection, m_grabbedKeys, m_mainQueue, std::move(handlers));
}

} // namespace quorvane
