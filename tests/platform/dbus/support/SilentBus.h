// SPDX-License-Identifier: MIT
#pragma once

#include <platform_dbus/BusSocket.h>

#include <QTemporaryDir>

namespace quorvane {

/// A socket where a bus would listen: connections are taken, and nothing is ever said.
class SilentBus {
public:
    explicit SilentBus(int queueLength = 16);
    ~SilentBus();

    SilentBus(const SilentBus&) = delete;
    SilentBus& operator=(const SilentBus&) = delete;

    [[nodiscard]] BusSocket socket() const;

    /// Hangs up on the client that has waited longest.
    void hangUp() const;

private:
    QTemporaryDir m_folder;
    int m_descriptor;
};

} // namespace quorvane
