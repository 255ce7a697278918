// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>

namespace quorvane {

/// Qt's QKeySequence on the bus: a structure of four numbers, of which those not used are 0.
struct KdeSequence {
    QList<int> keys;
};

[[nodiscard]] KdeSequence kdeSequenceOf(int key);

/// The one key of a sequence; 0 for none, and for several.
[[nodiscard]] int keyOf(const KdeSequence& sequence);

/// Before the first one, and the first list of them, goes over the bus.
void registerKdeSequence();

QDBusArgument& operator<<(QDBusArgument& argument, const KdeSequence& sequence);
const QDBusArgument& operator>>(const QDBusArgument& argument, KdeSequence& sequence);

} // namespace quorvane

Q_DECLARE_METATYPE(quorvane::KdeSequence)
