// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>

#include <optional>

namespace quorvane::portalfile {

/// The file that an answer consists of, the caller's to close; none where it is anything else.
[[nodiscard]] std::optional<int> in(const QDBusMessage& answer);

} // namespace quorvane::portalfile
