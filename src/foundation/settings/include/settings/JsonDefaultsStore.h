// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DefaultsStore.h>
#include <settings/JsonFile.h>

namespace quorvane {

/// The user's settings as one JSON object in a file.
class JsonDefaultsStore final : public DefaultsStore {
public:
    /// `writer` must outlive the store.
    JsonDefaultsStore(QString path, SettingsWriter& writer);

    [[nodiscard]] bool hasValue(const QString& key) const override;
    [[nodiscard]] bool boolForKey(const QString& key) const override;
    [[nodiscard]] std::optional<qint64> integerForKey(const QString& key) const override;
    [[nodiscard]] std::optional<QString> stringForKey(const QString& key) const override;
    [[nodiscard]] std::optional<QStringList> stringArrayForKey(const QString& key) const override;

    void setBool(const QString& key, bool value) override;
    void setInteger(const QString& key, qint64 value) override;
    void setString(const QString& key, const QString& value) override;
    void setStringArray(const QString& key, const QStringList& value) override;
    void setTogether(const std::function<void()>& changes) override;

private:
    JsonFile m_file;
};

} // namespace quorvane
