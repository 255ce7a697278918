// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ActivationToken.h>

#include <QVariantMap>

namespace quorvane {

// What a call of org.freedesktop.Application carries beside its arguments (Desktop Entry
// Specification, "D-Bus Activation").

/// Entries of other types, and those that nobody knows, count as absent.
[[nodiscard]] ActivationToken tokenOf(const QVariantMap& platformData);

[[nodiscard]] QVariantMap platformDataOf(const ActivationToken& token);

} // namespace quorvane
