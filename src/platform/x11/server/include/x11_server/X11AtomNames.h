// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <xcb/xcb.h>

#include <unordered_map>
#include <vector>

namespace quorvane {

/// The names of atoms. An atom keeps its name as long as the server runs, so that known ones need
/// not be asked for again.
class X11AtomNames {
public:
    /// Other programs make atoms without end; more names than these are not remembered.
    static constexpr std::size_t mostRemembered = 1024;

    /// In one round trip at most. Empty for an atom that the server does not know.
    [[nodiscard]] QStringList
    of(xcb_connection_t* connection, const std::vector<xcb_atom_t>& atoms);

private:
    void fetch(xcb_connection_t* connection, const std::vector<xcb_atom_t>& atoms);

    std::unordered_map<xcb_atom_t, QString> m_names;
};

} // namespace quorvane
