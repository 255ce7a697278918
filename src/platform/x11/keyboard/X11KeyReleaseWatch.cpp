// SPDX-License-Identifier: MIT
#include "X11KeyReleaseWatch.h"

#include "X11XInput.h"

#include <utility>

namespace quorvane {

X11KeyReleaseWatch::X11KeyReleaseWatch(
    std::shared_ptr<X11Connection> connection, std::function<void()> onReleased)
    : m_connection(std::move(connection)),
      m_onReleased(std::move(onReleased)),
      m_isAvailable(x11xinput::start(m_connection->xcb())),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
}

X11KeyReleaseWatch::~X11KeyReleaseWatch() {
    stop();
}

void X11KeyReleaseWatch::watch(xcb_keycode_t key) {
    if (!m_isAvailable)
        return;
    if (!m_key)
        x11xinput::selectKeyReleases(m_connection->xcb(), m_connection->root(), true);
    m_key = key;
    m_connection->flush();
}

void X11KeyReleaseWatch::stop() {
    if (!m_key)
        return;
    m_key.reset();
    x11xinput::selectKeyReleases(m_connection->xcb(), m_connection->root(), false);
    m_connection->flush();
}

void X11KeyReleaseWatch::handleEvent(const xcb_generic_event_t& event) {
    if (!m_key || x11xinput::releasedKey(m_connection->xcb(), event) != *m_key)
        return;
    stop();
    m_onReleased();
}

} // namespace quorvane
