// SPDX-License-Identifier: MIT
#include "PresetNames.h"
#include "VectorKinds.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct PresetName {
    DateFormatPreset preset;
    QLatin1StringView name;
};

constexpr std::array names{
    PresetName{DateFormatPreset::LongForm, "longForm"_L1},
    PresetName{DateFormatPreset::MediumForm, "mediumForm"_L1},
    PresetName{DateFormatPreset::ShortForm, "shortForm"_L1},
    PresetName{DateFormatPreset::Iso8601, "iso8601"_L1},
    PresetName{DateFormatPreset::Rfc2822, "rfc2822"_L1},
    PresetName{DateFormatPreset::DateOnly, "dateOnly"_L1},
    PresetName{DateFormatPreset::TimeOnly, "timeOnly"_L1},
    PresetName{DateFormatPreset::WithDayOfWeek, "withDayOfWeek"_L1},
    PresetName{DateFormatPreset::UnixTimestamp, "unixTimestamp"_L1},
    PresetName{DateFormatPreset::Custom, "custom"_L1},
};

} // namespace

QString presetName(DateFormatPreset preset) {
    return std::ranges::find(names, preset, &PresetName::preset)->name;
}

DateFormatPreset presetIn(const VectorRow& row, const char* field) {
    const auto name = row.text(field);
    const auto found = std::ranges::find(names, name, &PresetName::name);
    if (found == names.end())
        throw MalformedRow("no such preset: " + name.toStdString());
    return found->preset;
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
