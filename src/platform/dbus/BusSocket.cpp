// SPDX-License-Identifier: MIT
#include <platform_dbus/BusSocket.h>

#include <QFile>
#include <QStringList>

#include <map>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

std::optional<BusSocket> userBus(const Environment& environment) {
    const auto folder = environment("XDG_RUNTIME_DIR");
    if (!folder || folder->isEmpty())
        return std::nullopt;
    return BusSocket{QFile::encodeName(*folder) + "/bus", false};
}

std::map<QString, QByteArray> valuesIn(const QString& pairs) {
    std::map<QString, QByteArray> values;
    for (const auto& pair : pairs.split(u','))
        values[pair.section(u'=', 0, 0)] =
            QByteArray::fromPercentEncoding(QFile::encodeName(pair.section(u'=', 1)));
    return values;
}

std::optional<BusSocket> socketIn(const QString& address, const Environment& environment) {
    constexpr auto transport = "unix:"_L1;
    if (!address.startsWith(transport))
        return std::nullopt;
    const auto values = valuesIn(address.sliced(transport.size()));
    if (const auto path = values.find(u"path"_s); path != values.end())
        return BusSocket{path->second, false};
    if (const auto name = values.find(u"abstract"_s); name != values.end())
        return BusSocket{name->second, true};
    return values.contains(u"runtime"_s) ? userBus(environment) : std::nullopt;
}

} // namespace

std::optional<BusSocket>
BusSocket::inAddress(const QString& address, const Environment& environment) {
    for (const auto& single : address.split(u';')) {
        if (auto socket = socketIn(single, environment))
            return socket;
    }
    return std::nullopt;
}

std::optional<BusSocket> BusSocket::ofSession(const Environment& environment) {
    const auto address = environment("DBUS_SESSION_BUS_ADDRESS");
    return address && !address->isEmpty() ? inAddress(*address, environment) : userBus(environment);
}

} // namespace quorvane
