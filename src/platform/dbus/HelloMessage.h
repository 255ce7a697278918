// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace quorvane {

/// The message with which a client begins, as it goes over the wire (D-Bus Specification, "Message
/// Format").
[[nodiscard]] QByteArray helloMessage();

} // namespace quorvane
