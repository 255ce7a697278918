// SPDX-License-Identifier: MIT
#pragma once

#include <platform_dbus/BusSocket.h>

#include <QByteArray>

#include <chrono>

namespace quorvane {

/// The first words with a message bus, on a connection of their own that ends with this: whether a
/// bus that takes connections also answers. The library's own connecting waits for it without end.
class BusGreeting {
public:
    enum class State {
        Waiting,  ///< for the bus' next word
        Answered, ///< it greeted back
        Refused,  ///< there is no bus, or it has hung up
    };

    explicit BusGreeting(const BusSocket& socket);
    ~BusGreeting();

    BusGreeting(const BusGreeting&) = delete;
    BusGreeting& operator=(const BusGreeting&) = delete;

    [[nodiscard]] State state() const { return m_state; }

    /// Readable when the bus has said something; -1 where it does not even take connections.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// Takes what the bus has said; never waits.
    void proceed();

    /// Waits for the answer; after `patience` the state is still Waiting.
    [[nodiscard]] State await(std::chrono::milliseconds patience);

private:
    void connectTo(const BusSocket& socket);
    void say(const QByteArray& words);
    void hear(const QByteArray& words);

    int m_descriptor = -1;
    State m_state = State::Waiting;
    QByteArray m_heard;
    bool m_isAuthenticated = false;
};

} // namespace quorvane
