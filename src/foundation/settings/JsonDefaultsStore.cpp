// SPDX-License-Identifier: MIT
#include "JsonCoercion.h"

#include <settings/JsonDefaultsStore.h>

#include <QJsonArray>

namespace quorvane {

JsonDefaultsStore::JsonDefaultsStore(QString path, SettingsWriter& writer)
    : m_file(std::move(path), writer) {
}

bool JsonDefaultsStore::hasValue(const QString& key) const {
    return isScalar(m_file.value(key));
}

bool JsonDefaultsStore::boolForKey(const QString& key) const {
    return toBool(m_file.value(key));
}

std::optional<qint64> JsonDefaultsStore::integerForKey(const QString& key) const {
    return toInteger(m_file.value(key));
}

std::optional<QString> JsonDefaultsStore::stringForKey(const QString& key) const {
    return toText(m_file.value(key));
}

std::optional<QStringList> JsonDefaultsStore::stringArrayForKey(const QString& key) const {
    return toTextList(m_file.value(key));
}

void JsonDefaultsStore::setBool(const QString& key, bool value) {
    m_file.setValue(key, value);
}

void JsonDefaultsStore::setInteger(const QString& key, qint64 value) {
    m_file.setValue(key, value);
}

void JsonDefaultsStore::setString(const QString& key, const QString& value) {
    m_file.setValue(key, value);
}

void JsonDefaultsStore::setStringArray(const QString& key, const QStringList& value) {
    m_file.setValue(key, QJsonArray::fromStringList(value));
}

void JsonDefaultsStore::setTogether(const std::function<void()>& changes) {
    m_file.setTogether(changes);
}

} // namespace quorvane
