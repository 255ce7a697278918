// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <wayland_sway/SwayFrames.h>

namespace quorvane {

/// A socket that says what tests have it say, in the place of sway's.
class SwayServer {
public:
    SwayServer();
    ~SwayServer();

    SwayServer(const SwayServer&) = delete;
    SwayServer& operator=(const SwayServer&) = delete;

    [[nodiscard]] QString path() const;

    /// Takes the connection that waits; false if none does.
    [[nodiscard]] bool accept();

    void send(const QByteArray& data) const;

    void send(SwayKind kind, const QByteArray& payload) const { send(swayFrame(kind, payload)); }

    /// What has come since the last call; the next message, if it is there in whole.
    [[nodiscard]] std::optional<SwayMessage> next();

    /// Ends as a crash does.
    void stop();

private:
    QTemporaryDir m_folder;
    int m_listening = -1;
    int m_connection = -1;
    SwayFrames m_frames;
};

} // namespace quorvane
