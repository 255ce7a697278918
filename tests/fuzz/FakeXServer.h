// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <xcb/xcb.h>

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace quorvane {

/// The X server of a program that is linked with FakeXServer.cpp in the place of libxcb: it does
/// what requests say at once, within the process, and sends the events that a target makes up. Of
/// the protocol it knows what conversations about selections need.
class FakeXServer {
public:
    struct Property {
        xcb_atom_t type = XCB_ATOM_NONE;
        std::uint8_t unitBits = 8;
        QByteArray bytes;
    };

    /// What a client asked the owner of a selection for.
    struct Conversion {
        xcb_window_t requestor = XCB_WINDOW_NONE;
        xcb_atom_t selection = XCB_ATOM_NONE;
        xcb_atom_t target = XCB_ATOM_NONE;
        xcb_atom_t property = XCB_ATOM_NONE;
        xcb_timestamp_t time = XCB_CURRENT_TIME;
    };

    /// The one of the process.
    [[nodiscard]] static FakeXServer& instance();

    /// Forgets everything but the names of atoms.
    void reset();

    void set(xcb_window_t window, xcb_atom_t name, Property property) {
        m_properties[{window, name}] = std::move(property);
    }

    void remove(xcb_window_t window, xcb_atom_t name) { m_properties.erase({window, name}); }

    [[nodiscard]] const Property* property(xcb_window_t window, xcb_atom_t name) const;

    template <typename Event>
    void send(const Event& event) {
        static_assert(sizeof event <= sizeof(xcb_generic_event_t));
        const QByteArray bytes(reinterpret_cast<const char*>(&event), qsizetype{sizeof event});
        m_events.push_back(bytes.leftJustified(qsizetype{sizeof(xcb_generic_event_t)}, '\0'));
    }

    [[nodiscard]] std::optional<QByteArray> takeEvent();

    void convert(const Conversion& conversion) { m_conversion = conversion; }

    [[nodiscard]] const Conversion& lastConversion() const { return m_conversion; }

    [[nodiscard]] xcb_atom_t atom(const QByteArray& name);

    /// None where the server knows no such atom.
    [[nodiscard]] std::optional<QByteArray> nameOf(xcb_atom_t atom) const;

    void setOwner(xcb_atom_t selection, xcb_window_t window) { m_owners[selection] = window; }

    [[nodiscard]] xcb_window_t owner(xcb_atom_t selection) const;

    [[nodiscard]] xcb_window_t newWindow() { return firstWindow + ++m_windows; }

    static constexpr xcb_window_t firstWindow = 0x200000;
    static constexpr xcb_window_t windowMask = 0x1FFFFF;

private:
    std::map<std::pair<xcb_window_t, xcb_atom_t>, Property> m_properties;
    std::map<xcb_atom_t, xcb_window_t> m_owners;
    std::deque<QByteArray> m_events;
    std::vector<QByteArray> m_atoms;
    Conversion m_conversion;
    xcb_window_t m_windows = 0;
};

} // namespace quorvane
