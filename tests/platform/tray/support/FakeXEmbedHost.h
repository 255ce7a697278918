// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/QtX11.h>
#include <x11_server/X11Connection.h>
#include <x11_server/X11HiddenWindow.h>
#include <x11_server/X11PropertyValue.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvane {

/// Another program that owns the selection of XEmbed hosts, for as long as this object lives. It
/// takes no icon in.
class FakeXEmbedHost {
public:
    FakeXEmbedHost() {
        const auto selection = m_connection->atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(m_connection->xcb(), m_window->id(), selection, XCB_CURRENT_TIME);
        m_connection->waitForServer();
    }

    /// A watch that ended before does not hear of it, one that begins afterwards knows of it.
    ~FakeXEmbedHost() {
        qtx11::waitForServer();
        m_window.reset();
        m_connection->waitForServer();
    }

    /// Three or more numbers of 16 bits each; the first three are those of texts.
    void tellColors(const std::vector<std::uint32_t>& numbers) {
        writePropertyValue(
            *m_connection,
            m_window->id(),
            m_connection->atom("_NET_SYSTEM_TRAY_COLORS"),
            propertyValue(XCB_ATOM_CARDINAL, numbers));
        m_connection->waitForServer();
    }

    FakeXEmbedHost(const FakeXEmbedHost&) = delete;
    FakeXEmbedHost& operator=(const FakeXEmbedHost&) = delete;

private:
    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    std::optional<X11HiddenWindow> m_window{m_connection};
};

} // namespace quorvane
