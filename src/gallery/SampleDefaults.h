// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DefaultsStore.h>

#include <QVariantHash>

namespace quorvane {

/// Settings of a user who has changed none, forgotten with the gallery.
class SampleDefaults final : public DefaultsStore {
public:
    [[nodiscard]] bool hasValue(const QString& key) const override;
    [[nodiscard]] bool boolForKey(const QString& key) const override;
    [[nodiscard]] std::optional<qint64> integerForKey(const QString& key) const override;
    [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const override;
    [[nodiscard]] std::optional<QStringList> stringArrayForKey(const QString& key) const override;

    void setBool(const QString& key, bool value) override;
    void setInteger(const QString& key, qint64 value) override;
    void setString(const QString& key, const QString& value) override;
    void setStringArray(const QString& key, const QStringList& value) override;

private:
    /// Everything here was written by the same program: nothing needs to be coerced.
    template <typename T>
    [[nodiscard]] std::optional<T> stored(const QString& key) const;

    QVariantHash m_values;
};

} // namespace quorvane
