// SPDX-License-Identifier: MIT
#include <backends/Compositor.h>
#include <utility>
#include <wayland_server/WaylandConnection.h>

namespace quorvane {

Compositor::Compositor() = default;
Compositor::~Compositor() = default;
Compositor::Compositor(Compositor&& other) noexcept = default;
Compositor& Compositor::operator=(Compositor&& other) noexcept = default;

Compositor Compositor::ask(const Environment& environment, std::chrono::milliseconds patience) {
    auto opened = WaylandConnection::open(environment, patience);
    Compositor compositor;
    if (opened.attempt == WaylandConnection::Attempt::Silent)
        compositor.m_answer = Answer::Silent;
    if (opened.attempt == WaylandConnection::Attempt::Connected)
        compositor.m_answer = Answer::Offers;
    compositor.m_connection = std::move(opened.connection);
    return compositor;
}

bool Compositor::offers(std::string_view interface) const {
    return m_connection && m_connection->globals().offers(interface);
}

} // namespace quorvane
