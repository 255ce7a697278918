// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QByteArray>
#include <QString>

#include <optional>

namespace quorvane {

/// Where a message bus listens on this machine.
struct BusSocket {
    QByteArray path;
    bool isAbstract = false; ///< a name that the kernel keeps, not a file

    /// The first socket among the addresses (D-Bus Specification, "Server Addresses"); none if all
    /// are of other kinds.
    [[nodiscard]] static std::optional<BusSocket>
    inAddress(const QString& address, const Environment& environment);

    /// That of the session bus; none where only the bus library knows.
    [[nodiscard]] static std::optional<BusSocket> ofSession(const Environment& environment);

    friend bool operator==(const BusSocket&, const BusSocket&) = default;
};

} // namespace quorvane
