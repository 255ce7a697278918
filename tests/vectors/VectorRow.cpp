// SPDX-License-Identifier: MIT
#include "VectorRow.h"

namespace quorvane {

namespace {

[[noreturn]] void refuse(const char* name, const char* reason) {
    throw MalformedRow(std::string("field \"") + name + "\" " + reason);
}

} // namespace

VectorRow::VectorRow(QJsonObject fields, const ZoneDatabase& zones)
    : m_fields(std::move(fields)),
      m_zones(zones) {
}

QJsonValue VectorRow::value(const char* name) const {
    const auto found = m_fields.constFind(QLatin1StringView(name));
    if (found == m_fields.constEnd())
        refuse(name, "is missing");
    return *found;
}

QString VectorRow::text(const char* name) const {
    const auto field = value(name);
    if (!field.isString())
        refuse(name, "is not a text");
    return field.toString();
}

double VectorRow::number(const char* name) const {
    const auto field = value(name);
    if (!field.isDouble())
        refuse(name, "is not a number");
    return field.toDouble();
}

bool VectorRow::flag(const char* name) const {
    const auto field = value(name);
    if (!field.isBool())
        refuse(name, "is not a bool");
    return field.toBool();
}

QStringList VectorRow::texts(const char* name) const {
    QStringList result;
    for (const auto element : array(name)) {
        if (!element.isString())
            refuse(name, "holds something that is not a text");
        result.append(element.toString());
    }
    return result;
}

QJsonArray VectorRow::array(const char* name) const {
    const auto field = value(name);
    if (!field.isArray())
        refuse(name, "is not an array");
    return field.toArray();
}

TimeZone VectorRow::zone(const char* name) const {
    return zoneNamed(text(name));
}

std::vector<TimeZone> VectorRow::zoneList(const char* name) const {
    std::vector<TimeZone> result;
    for (const auto& identifier : texts(name))
        result.push_back(zoneNamed(identifier));
    return result;
}

UserLocale VectorRow::locale() const {
    return UserLocale::named(text("locale"));
}

TimeZone VectorRow::zoneNamed(const QString& identifier) const {
    auto zone = m_zones.zone(identifier);
    if (!zone)
        throw MalformedRow("no such zone: " + identifier.toStdString());
    return *std::move(zone);
}

} // namespace quorvane
