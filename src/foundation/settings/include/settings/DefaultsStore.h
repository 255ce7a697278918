// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace quorvane {

/// The user's settings: a value per key, kept across runs. Readers coerce, as far as a value can be
/// read as the type asked for; what cannot be written now is kept in memory and written with the
/// next change.
class DefaultsStore {
public:
    virtual ~DefaultsStore() = default;

    /// Whether any value is stored, whatever its type. Arrays, objects and null count as absent
    /// here unless the reader asks for an array.
    [[nodiscard]] virtual bool hasValue(const QString& key) const = 0;

    /// A bool; a number (not zero); one of the texts "YES", "true", "1" and their opposites in any
    /// case. False for everything else.
    [[nodiscard]] virtual bool boolForKey(const QString& key) const = 0;

    /// A number, or a text that holds one; a fraction is cut off, a magnitude beyond 64 bits
    /// becomes the nearest that fits. None when absent or no number.
    [[nodiscard]] virtual std::optional<qint64> integerForKey(const QString& key) const = 0;

    /// A text; a number is given as its text.
    [[nodiscard]] virtual std::optional<QString> stringForKey(const QString& key) const = 0;

    /// An array of texts; none when absent, no array, or any element is not a text.
    [[nodiscard]] virtual std::optional<QStringList>
    stringArrayForKey(const QString& key) const = 0;

    virtual void setBool(const QString& key, bool value) = 0;
    virtual void setInteger(const QString& key, qint64 value) = 0;
    virtual void setString(const QString& key, const QString& value) = 0;
    virtual void setStringArray(const QString& key, const QStringList& value) = 0;

    /// Runs what sets several values that mean something only together: either all of them are kept
    /// or, where the process ends meanwhile, none.
    virtual void setTogether(const std::function<void()>& changes) { changes(); }
};

} // namespace quorvane
