// SPDX-License-Identifier: MIT
#include "SampleDefaults.h"

namespace quorvane {

template <typename T>
std::optional<T> SampleDefaults::stored(const QString& key) const {
    const auto value = m_values.constFind(key);
    if (value == m_values.constEnd() || value->metaType() != QMetaType::fromType<T>())
        return std::nullopt;
    return value->value<T>();
}

bool SampleDefaults::hasValue(const QString& key) const {
    return m_values.contains(key);
}

bool SampleDefaults::boolForKey(const QString& key) const {
    return stored<bool>(key).value_or(false);
}

std::optional<qint64> SampleDefaults::integerForKey(const QString& key) const {
    return stored<qint64>(key);
}

std::optional<QString> SampleDefaults::stringForKey(const QString& key) const {
    return stored<QString>(key);
}

std::optional<QStringList> SampleDefaults::stringArrayForKey(const QString& key) const {
    return stored<QStringList>(key);
}

void SampleDefaults::setBool(const QString& key, bool value) {
    m_values.insert(key, value);
}

void SampleDefaults::setInteger(const QString& key, qint64 value) {
    m_values.insert(key, value);
}

void SampleDefaults::setString(const QString& key, const QString& value) {
    m_values.insert(key, value);
}

void SampleDefaults::setStringArray(const QString& key, const QStringList& value) {
    m_values.insert(key, value);
}

} // namespace quorvane
