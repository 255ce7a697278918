// SPDX-License-Identifier: MIT
#include "PortalPath.h"

#include "PortalNames.h"

#include <QUuid>

namespace quorvane::portalpath {

using namespace Qt::StringLiterals;

QString freshToken() {
    return u"quorvane_"_s + QUuid::createUuid().toString(QUuid::Id128);
}

QString of(QStringView kind, const QDBusConnection& bus, const QString& token) {
    auto sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return u"%1/%2/%3/%4"_s.arg(portalname::object, kind, sender, token);
}

} // namespace quorvane::portalpath
