// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11SelectionInbox.h>
#include <x11_server/X11Events.h>

#include <algorithm>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

X11SelectionInbox::X11SelectionInbox(std::shared_ptr<X11Connection> connection, MainQueue& queue)
    : m_connection(std::move(connection)),
      m_queue(queue),
      m_window(m_connection),
      m_subscription(
          m_connection->subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
}

xcb_atom_t X11SelectionInbox::lease() {
    if (m_spare.empty())
        return m_connection->atom(u"QUORVANE_ANSWER_%1"_s.arg(++m_made));
    const auto property = m_spare.back();
    m_spare.pop_back();
    return property;
}

void X11SelectionInbox::giveBack(xcb_atom_t property) {
    m_spare.push_back(property);
}

void X11SelectionInbox::abandon(xcb_atom_t property) {
    discard(property);
    m_abandoned.push_back({property});
    if (m_abandoned.size() <= mostAbandoned)
        return;
    discard(m_abandoned.front().property);
    giveBack(m_abandoned.front().property);
    m_abandoned.pop_front();
}

void X11SelectionInbox::discard(xcb_atom_t property) {
    xcb_delete_property(m_connection->xcb(), window(), property);
    m_connection->flush();
}

void X11SelectionInbox::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event);
    if (change == nullptr || change->window != window() || change->state != XCB_PROPERTY_NEW_VALUE)
        return;
    const auto abandoned = std::ranges::find(m_abandoned, change->atom, &Abandoned::property);
    // An owner that sends in increments waits for this before it sends the next.
    if (abandoned != m_abandoned.end() && abandoned->discards++ < mostDiscards)
        discard(abandoned->property);
}

} // namespace quorvane
