// SPDX-License-Identifier: MIT
#include "NumberText.h"
#include "TimeEntry.h"
#include "VectorKinds.h"

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// Where a zone skips or repeats a time, several instants are right; the row lists them.
QJsonValue expectedInstant(const VectorRow& row, double actual) {
    if (!row.fields().contains("accept"_L1))
        return row.number("after");
    const auto acceptable = row.array("accept");
    return acceptable.contains(actual) ? QJsonValue(actual) : QJsonValue(acceptable);
}

QJsonArray asJson(const TimeTexts& texts) {
    return {texts.hourText, texts.minuteText, texts.isPM};
}

} // namespace

Comparison checkNumberText(const VectorRow& row) {
    const auto number = parsedNumber(row.text("text"));
    return {row.value("value"), number ? QJsonValue(QString::number(*number)) : QJsonValue::Null};
}

Comparison checkTimeStep(const VectorRow& row) {
    auto hour = row.text("hourText");
    auto minute = row.text("minuteText");
    const auto step = static_cast<qint64>(row.number("d"));
    // Without a focus the minute is what steps.
    if (row.value("focus") == "hour"_L1)
        hour = steppedHour(hour, step);
    else
        minute = steppedMinute(minute, step);
    return {QJsonArray{row.text("hourAfter"), row.text("minuteAfter")}, QJsonArray{hour, minute}};
}

Comparison checkTimeEntry(const VectorRow& row) {
    const TimeTexts given{row.text("hourText"), row.text("minuteText"), row.flag("isPM")};
    const auto before = row.instant("t");
    const auto zone = row.zone("tz");
    const auto texts = row.text("op") == "load+save"_L1 ? loadedTime(before, zone) : given;
    const auto after = savedTime(texts, before, zone).value_or(before).secondsSince1970;
    return {
        QJsonArray{asJson(given), expectedInstant(row, after)}, QJsonArray{asJson(texts), after}};
}

} // namespace quorvane
