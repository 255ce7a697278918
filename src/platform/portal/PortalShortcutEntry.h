// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quorvane {

/// One shortcut on the bus: what programs call it, and what else is told of it.
struct PortalShortcutEntry {
    QString id;
    QVariantMap traits;

    friend bool operator==(const PortalShortcutEntry&, const PortalShortcutEntry&) = default;
};

using PortalShortcutList = QList<PortalShortcutEntry>;

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcutEntry& entry);
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcutEntry& entry);

/// For the bus; none of another type.
namespace portalshortcuts {

[[nodiscard]] QVariant sent(const PortalShortcutList& list);

/// The traits of the shortcut in a list that came; none if it is not there, or this is no list.
[[nodiscard]] std::optional<QVariantMap> traitsOf(const QString& id, const QVariant& list);

} // namespace portalshortcuts

} // namespace quorvane

Q_DECLARE_METATYPE(quorvane::PortalShortcutEntry)
