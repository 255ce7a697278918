// SPDX-License-Identifier: MIT
#pragma once

#include "support/ForeignWindow.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quorvane {

/// The program of a window asks for a selection, as it does when the user pastes there.
class ForeignReader {
public:
    /// The window must outlive it.
    explicit ForeignReader(ForeignWindow& window, const QString& selection);

    /// The bytes of a target as of a time of the server, which may be CurrentTime; none where it is
    /// refused. The event loop runs until the answer comes.
    [[nodiscard]] std::optional<QByteArray>
    read(const QString& target, xcb_timestamp_t time = XCB_CURRENT_TIME);

private:
    [[nodiscard]] xcb_atom_t atom(const QByteArray& name) const;
    [[nodiscard]] QByteArray takeProperty();

    ForeignWindow& m_window;
    xcb_connection_t* m_connection;
    xcb_atom_t m_selection;
    xcb_atom_t m_property;
};

} // namespace quorvane
