// SPDX-License-Identifier: MIT
#include <x11_server/X11AtomNames.h>
#include <x11_server/XcbReply.h>

#include <algorithm>
#include <utility>

namespace quorvane {

QStringList X11AtomNames::of(xcb_connection_t* connection, const std::vector<xcb_atom_t>& atoms) {
    std::vector<xcb_atom_t> unknown;
    std::ranges::copy_if(atoms, std::back_inserter(unknown), [this](xcb_atom_t atom) {
        return !m_names.contains(atom);
    });
    fetch(connection, unknown);
    QStringList names;
    for (const auto atom : atoms) {
        const auto known = m_names.find(atom);
        names.append(known == m_names.end() ? QString() : known->second);
    }
    if (m_names.size() > mostRemembered)
        m_names.clear();
    return names;
}

// All questions are on their way before the first answer is waited for.
void X11AtomNames::fetch(xcb_connection_t* connection, const std::vector<xcb_atom_t>& atoms) {
    std::vector<std::pair<xcb_atom_t, xcb_get_atom_name_cookie_t>> questions;
    questions.reserve(atoms.size());
    for (const auto atom : atoms)
        questions.emplace_back(atom, xcb_get_atom_name(connection, atom));
    for (const auto& [atom, question] : questions) {
        const XcbReply<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(connection, question, nullptr));
        if (reply)
            m_names[atom] = QString::fromUtf8(
                xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()));
    }
}

} // namespace quorvane
