// SPDX-License-Identifier: MIT
#pragma once

#include <foundation/TimeZone.h>
#include <foundation/ZoneDatabase.h>

#include <QLineEdit>

#include <vector>

namespace quorvane {

/// A field for a list of zone identifiers, completed as one types. What is typed counts when the
/// user leaves the field or presses Return; what names no zone is dropped then.
class ZoneField final : public QLineEdit {
    Q_OBJECT

public:
    ZoneField(const ZoneDatabase& database, QWidget* parent);

    void setZones(const std::vector<TimeZone>& zones);

Q_SIGNALS:
    void zonesEntered(const std::vector<quorvane::TimeZone>& zones);

private:
    const ZoneDatabase& m_database;
};

} // namespace quorvane
