// SPDX-License-Identifier: MIT
#include "PresetNames.h"
#include "VectorKinds.h"

#include <algorithm>
#include <iterator>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QLatin1StringView nameOf(DateFormatPreset preset) {
    switch (preset) {
    case DateFormatPreset::LongForm:
        return "longForm"_L1;
    case DateFormatPreset::MediumForm:
        return "mediumForm"_L1;
    case DateFormatPreset::ShortForm:
        return "shortForm"_L1;
    case DateFormatPreset::Iso8601:
        return "iso8601"_L1;
    case DateFormatPreset::Rfc2822:
        return "rfc2822"_L1;
    case DateFormatPreset::DateOnly:
        return "dateOnly"_L1;
    case DateFormatPreset::TimeOnly:
        return "timeOnly"_L1;
    case DateFormatPreset::WithDayOfWeek:
        return "withDayOfWeek"_L1;
    case DateFormatPreset::UnixTimestamp:
        return "unixTimestamp"_L1;
    case DateFormatPreset::Custom:
        return "custom"_L1;
    }
    return {};
}

} // namespace

QString presetName(DateFormatPreset preset) {
    return nameOf(preset);
}

DateFormatPreset presetIn(const VectorRow& row, const char* field) {
    const auto name = row.text(field);
    const auto found = std::ranges::find(allDateFormatPresets, name, presetName);
    if (found == allDateFormatPresets.end())
        throw MalformedRow("no such preset: " + name.toStdString());
    return *found;
}

Comparison checkPreset(const VectorRow& row) {
    const auto preset = dateFormatPreset(row.text("raw"));
    if (row.value("case").isNull())
        return {QJsonValue::Null, preset ? QJsonValue(presetName(*preset)) : QJsonValue::Null};

    const QJsonObject expected{
        {"case"_L1, row.value("case")},
        {"index"_L1, row.value("index")},
        {"raw"_L1, row.text("raw")}};
    if (!preset)
        return {expected, QJsonValue::Null};
    const auto position = std::ranges::find(allDateFormatPresets, *preset);
    const QJsonObject actual{
        {"case"_L1, presetName(*preset)},
        {"index"_L1, qint64{std::distance(allDateFormatPresets.begin(), position)}},
        {"raw"_L1, rawValue(*preset)}};
    return {expected, actual};
}

} // namespace quorvane
