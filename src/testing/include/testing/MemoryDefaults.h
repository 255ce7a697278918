// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DefaultsStore.h>

#include <map>
#include <variant>
#include <vector>

namespace quorvane {

/// Settings that end with the test, and a record of every write.
class MemoryDefaults final : public DefaultsStore {
public:
    using Value = std::variant<bool, qint64, QString, QStringList>;

    [[nodiscard]] bool hasValue(const QString& key) const override {
        return m_values.contains(key);
    }

    [[nodiscard]] bool boolForKey(const QString& key) const override {
        return get<bool>(key).value_or(false);
    }

    [[nodiscard]] std::optional<qint64> integerForKey(const QString& key) const override {
        return get<qint64>(key);
    }

    [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const override {
        return get<QString>(key);
    }

    [[nodiscard]] std::optional<QStringList> stringArrayForKey(const QString& key) const override {
        return get<QStringList>(key);
    }

    void setBool(const QString& key, bool value) override { set(key, value); }

    void setInteger(const QString& key, qint64 value) override { set(key, value); }

    void setString(const QString& key, const QString& value) override { set(key, value); }

    void setStringArray(const QString& key, const QStringList& value) override { set(key, value); }

    /// The keys of all writes, in order.
    [[nodiscard]] const std::vector<QString>& writes() const { return m_writes; }

private:
    template <typename T>
    [[nodiscard]] std::optional<T> get(const QString& key) const {
        const auto found = m_values.find(key);
        if (found == m_values.end())
            return std::nullopt;
        const auto* value = std::get_if<T>(&found->second);
        return value ? std::optional<T>(*value) : std::nullopt;
    }

    void set(const QString& key, Value value) {
        m_values.insert_or_assign(key, std::move(value));
        m_writes.push_back(key);
    }

    std::map<QString, Value> m_values;
    std::vector<QString> m_writes;
};

} // namespace quorvane
