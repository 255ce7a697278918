// SPDX-License-Identifier: MIT
#include <x11_server/X11PropertyValue.h>
#include <x11_windows/X11WindowStates.h>

#include <algorithm>

namespace quorvane {

namespace {

constexpr auto stateProperty = "_NET_WM_STATE";

} // namespace

void X11WindowStates::write(xcb_window_t window, std::initializer_list<Wish> wishes) const {
    auto present = m_windows.values(window, stateProperty, XCB_ATOM_ATOM);
    for (const auto& wish : wishes) {
        for (const auto state : atoms(wish.states)) {
            std::erase(present, state);
            if (wish.change == Change::Add)
                present.push_back(state);
        }
    }
    writePropertyValue(
        *m_connection,
        window,
        m_connection->atom(stateProperty),
        propertyValue(XCB_ATOM_ATOM, present));
}

void X11WindowStates::request(xcb_window_t window, const Pair& states, Change change) const {
    const auto [first, second] = atoms(states);
    m_windows.requestOfManager(
        window, stateProperty, {static_cast<std::uint32_t>(change), first, second, sourcePager, 0});
}

std::array<xcb_atom_t, 2> X11WindowStates::atoms(const Pair& states) const {
    return {m_connection->atom(states[0]), m_connection->atom(states[1])};
}

} // namespace quorvane
