// SPDX-License-Identifier: MIT
#include "PlatformData.h"

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto tokenKey = u"activation-token"_s;
const auto startupIdKey = u"desktop-startup-id"_s;

QString textIn(const QVariantMap& platformData, const QString& key) {
    const auto value = platformData.value(key);
    return value.metaType() == QMetaType::fromType<QString>() ? value.toString() : QString();
}

} // namespace

ActivationToken tokenOf(const QVariantMap& platformData) {
    return activationTokenOf(textIn(platformData, tokenKey), textIn(platformData, startupIdKey));
}

QVariantMap platformDataOf(const ActivationToken& token) {
    QVariantMap platformData;
    if (!token.token.isEmpty())
        platformData.insert(tokenKey, token.token);
    if (!token.startupId.isEmpty())
        platformData.insert(startupIdKey, token.startupId);
    return platformData;
}

} // namespace quorvane
