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

std::shared_ptr<WaylandToplevels> WaylandLink::toplevels() {
    if (!m_toplevels)
        m_toplevels = std::make_shared<WaylandToplevels>(connection(), seats());
    return m_toplevels;
}

std::shared_ptr<SwayLink> WaylandLink::sway() {
    if (!std::exchange(m_isSwayTried, true))
        m_sway = SwayLink::open(m_session.environment("SWAYSOCK").value_or(QString()));
    return m_sway;
}

} // namespace quorvane
