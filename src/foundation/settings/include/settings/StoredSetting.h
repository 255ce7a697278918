// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DefaultsStore.h>

#include <type_traits>

namespace quorvane {

/// One of the user's settings: the key that it is stored under, the type that it is read as (a
/// bool, a qint64, a QString or a QStringList), and what holds while nothing of that type is
/// stored. What a stored value of another type becomes is in DefaultsStore.
template <typename T, typename Default = T>
struct StoredSetting {
    QLatin1StringView key;
    Default defaultValue;

    /// What is stored; none where that is nothing, or cannot be read as a T.
    [[nodiscard]] std::optional<T> storedIn(const DefaultsStore& defaults) const {
        if constexpr (std::is_same_v<T, bool>)
            return defaults.hasValue(key) ? std::optional(defaults.boolForKey(key)) : std::nullopt;
        else if constexpr (std::is_same_v<T, qint64>)
            return defaults.integerForKey(key);
        else if constexpr (std::is_same_v<T, QString>)
            return defaults.stringForKey(key);
        else
            return defaults.stringArrayForKey(key);
    }

    [[nodiscard]] T valueIn(const DefaultsStore& defaults) const {
        return storedIn(defaults).value_or(T(defaultValue));
    }

    void store(DefaultsStore& defaults, const T& value) const {
        if constexpr (std::is_same_v<T, bool>)
            defaults.setBool(key, value);
        else if constexpr (std::is_same_v<T, qint64>)
            defaults.setInteger(key, value);
        else if constexpr (std::is_same_v<T, QString>)
            defaults.setString(key, value);
        else
            defaults.setStringArray(key, value);
    }
};

} // namespace quorvane
