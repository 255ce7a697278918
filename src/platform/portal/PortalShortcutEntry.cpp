// SPDX-License-Identifier: MIT
#include "PortalShortcutEntry.h"

#include <QDBusMetaType>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcutEntry& entry) {
    argument.beginStructure();
    argument << entry.id << entry.traits;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcutEntry& entry) {
    argument.beginStructure();
    argument >> entry.id >> entry.traits;
    argument.endStructure();
    return argument;
}

namespace portalshortcuts {

QVariant sent(const PortalShortcutList& list) {
    qDBusRegisterMetaType<PortalShortcutEntry>();
    qDBusRegisterMetaType<PortalShortcutList>();
    return QVariant::fromValue(list);
}

std::optional<QVariantMap> traitsOf(const QString& id, const QVariant& list) {
    if (list.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = list.value<QDBusArgument>();
    if (argument.currentSignature() != "a(sa{sv})"_L1)
        return std::nullopt;
    const auto entries = qdbus_cast<PortalShortcutList>(argument);
    const auto found = std::ranges::find(entries, id, &PortalShortcutEntry::id);
    return found == entries.end() ? std::nullopt : std::optional(found->traits);
}

} // namespace portalshortcuts

} // namespace quorvane
