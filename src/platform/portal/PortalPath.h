// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QString>

/// The objects of requests and sessions, whose paths both sides know beforehand.
namespace quorvane::portalpath {

/// One that nobody has used or can guess.
[[nodiscard]] QString freshToken();

/// That of a "request" or a "session" which is made on this connection with the token.
[[nodiscard]] QString of(QStringView kind, const QDBusConnection& bus, const QString& token);

} // namespace quorvane::portalpath
