// SPDX-License-Identifier: MIT
#include <loop/Failure.h>
#include <platform_dbus/BusGreeting.h>
#include <platform_dbus/HungBusGuard.h>

#include <QDBusConnection>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto variable = "DBUS_SESSION_BUS_ADDRESS";

// Of no kind that a bus library knows.
constexpr auto noAddress = "disabled:";

} // namespace

HungBusGuard::HungBusGuard(const Environment& environment, std::chrono::milliseconds patience) {
    const auto socket = BusSocket::ofSession(environment);
    if (!socket || BusGreeting(*socket).await(patience) != BusGreeting::State::Waiting)
        return;
    reportFailure(u"the session bus does not answer; starting without it"_s);
    m_hiddenAddress = qgetenv(variable);
    qputenv(variable, noAddress);
}

void HungBusGuard::settle() {
    if (!m_hiddenAddress)
        return;
    // Qt keeps the outcome of the first attempt; programs that we start may find the bus well.
    static_cast<void>(QDBusConnection::sessionBus());
    if (m_hiddenAddress->isEmpty())
        qunsetenv(variable);
    else
        qputenv(variable, *m_hiddenAddress);
    m_hiddenAddress.reset();
}

} // namespace quorvane
