// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

namespace quorvane {

/// A stream to a socket of the file system that never makes the program wait.
class SwaySocket {
public:
    struct Handlers {
        std::function<void(const QByteArray&)> received;
        std::function<void()> lost; ///< once; nothing is received or sent from then on
    };

    /// Null if nobody listens there.
    [[nodiscard]] static std::unique_ptr<SwaySocket> open(const QString& path, Handlers handlers);

    ~SwaySocket();

    SwaySocket(const SwaySocket&) = delete;
    SwaySocket& operator=(const SwaySocket&) = delete;

    /// What the other side does not take now follows when it does.
    void send(const QByteArray& data);

private:
    SwaySocket(int descriptor, Handlers handlers);

    void read();
    void write();
    void giveUp();

    int m_descriptor;
    Handlers m_handlers;
    QByteArray m_outgoing;
    QSocketNotifier m_readable;
    QSocketNotifier m_writable;
};

} // namespace quorvane
