// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace quorvane {

/// A row lacks a field, or holds something else in it than its file's kind asks for.
class MalformedRow : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One line of a vector file. All readers throw MalformedRow.
class VectorRow {
public:
    /// `zones` must outlive the row.
    VectorRow(QJsonObject fields, const ZoneDatabase& zones);

    [[nodiscard]] const QJsonObject& fields() const { return m_fields; }

    [[nodiscard]] const ZoneDatabase& zones() const { return m_zones; }

    /// Of any type, null included.
    [[nodiscard]] QJsonValue value(const char* name) const;

    [[nodiscard]] QString text(const char* name) const;
    [[nodiscard]] double number(const char* name) const;
    [[nodiscard]] bool flag(const char* name) const;
    [[nodiscard]] QStringList texts(const char* name) const;
    [[nodiscard]] QJsonArray array(const char* name) const;

    [[nodiscard]] Instant instant(const char* name) const { return {number(name)}; }

    [[nodiscard]] TimeZone zone(const char* name) const;
    [[nodiscard]] std::vector<TimeZone> zoneList(const char* name) const;
    [[nodiscard]] UserLocale locale() const;

private:
    [[nodiscard]] TimeZone zoneNamed(const QString& identifier) const;

    QJsonObject m_fields;
    const ZoneDatabase& m_zones;
};

} // namespace quorvane
