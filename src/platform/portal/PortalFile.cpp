// SPDX-License-Identifier: MIT
#include "PortalFile.h"

#include <QDBusUnixFileDescriptor>

#include <fcntl.h>

namespace quorvane::portalfile {

std::optional<int> in(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1StringView("h"))
        return std::nullopt;
    const auto file = answer.arguments().constFirst().value<QDBusUnixFileDescriptor>();
    // The message closes its own.
    const int descriptor = file.isValid() ? ::fcntl(file.fileDescriptor(), F_DUPFD_CLOEXEC, 0) : -1;
    return descriptor < 0 ? std::nullopt : std::optional(descriptor);
}

} // namespace quorvane::portalfile
