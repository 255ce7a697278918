// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QByteArray>

#include <optional>

namespace quorvane {

/// Where the session's compositor listens: $WAYLAND_DISPLAY is a path, or a name in
/// $XDG_RUNTIME_DIR. None where neither tells.
[[nodiscard]] std::optional<QByteArray> waylandSocketPath(const Environment& environment);

/// A socket that is connected to that path, for the caller to close; -1 where nobody listens, or
/// whoever does takes no more connections. Never waits.
[[nodiscard]] int connectToWaylandSocket(const QByteArray& path);

} // namespace quorvane
