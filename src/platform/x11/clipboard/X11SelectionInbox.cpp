// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11SelectionInbox.h>
#include <x11_server/X11Events.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

X11SelectionInbox::X11SelectionInbox(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
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
    xcb_delete_property(m_connection->xcb(), window(), property);
    m_connection->flush();
    m_abandoned.insert(property);
}

void X11SelectionInbox::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event);
    if (change == nullptr || change->window != window() ||
        change->state != XCB_PROPERTY_NEW_VALUE || !m_abandoned.contains(change->atom))
        return;
    // An owner that sends in increments waits for this before it sends the next.
    xcb_delete_property(m_connection->xcb(), window(), change->atom);
}

} // namespace quorvane
