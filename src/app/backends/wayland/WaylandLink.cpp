// SPDX-License-Identifier: MIT
#include "WaylandLink.h"

#include <loop/Failure.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

WaylandLink::WaylandLink(const DesktopSession& session) : m_session(session) {
}

std::shared_ptr<WaylandConnection> WaylandLink::connection() {
    auto connection = m_session.compositor.connection();
    if (connection && !std::exchange(m_isFollowed, true)) {
        // Where Qt has its windows elsewhere they outlive the compositor's services.
        connection->listen(m_session.isQtOnWayland() ? m_session.onDisplayLost : [] {
            reportFailure(u"the connection to the compositor is lost: its services are no longer "
                          u"available"_s);
        });
    }
    return connection;
}

std::shared_ptr<WaylandSeats> WaylandLink::seats() {
    if (!m_seats)
        m_seats = std::make_shared<WaylandSeats>(connection());
    return m_seats;
}

} // namespace quorvane
