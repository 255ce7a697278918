// SPDX-License-Identifier: MIT
#include <composition/CaseOf.h>
#include <composition/DateFormatPreset.h>

#include <QCoreApplication>

namespace quorvane {

namespace {

struct Texts {
    QStringView rawValue;
    const char* label; ///< the source of its translations
};

Texts textsOf(DateFormatPreset preset) {
    switch (preset) {
    case DateFormatPreset::LongForm:
        return {u"Long", QT_TRANSLATE_NOOP("DateFormatPreset", "Long")};
    case DateFormatPreset::MediumForm:
        return {u"Medium", QT_TRANSLATE_NOOP("DateFormatPreset", "Medium")};
    case DateFormatPreset::ShortForm:
        return {u"Short", QT_TRANSLATE_NOOP("DateFormatPreset", "Short")};
    case DateFormatPreset::Iso8601:
        return {u"ISO 8601", QT_TRANSLATE_NOOP("DateFormatPreset", "ISO 8601")};
    case DateFormatPreset::Rfc2822:
        return {u"RFC 2822", QT_TRANSLATE_NOOP("DateFormatPreset", "RFC 2822")};
    case DateFormatPreset::DateOnly:
        return {u"Date Only", QT_TRANSLATE_NOOP("DateFormatPreset", "Date Only")};
    case DateFormatPreset::TimeOnly:
        return {u"Time Only", QT_TRANSLATE_NOOP("DateFormatPreset", "Time Only")};
    case DateFormatPreset::WithDayOfWeek:
        return {u"Day of Week", QT_TRANSLATE_NOOP("DateFormatPreset", "Day of Week")};
    case DateFormatPreset::UnixTimestamp:
        return {u"Unix Timestamp", QT_TRANSLATE_NOOP("DateFormatPreset", "Unix Timestamp")};
    case DateFormatPreset::Custom:
        return {u"Custom\u2026", QT_TRANSLATE_NOOP("DateFormatPreset", "Custom…")};
    }
    return {};
}

} // namespace

QString rawValue(DateFormatPreset preset) {
    return textsOf(preset).rawValue.toString();
}

std::optional<DateFormatPreset> dateFormatPreset(QStringView rawValue) {
    return caseOf(allDateFormatPresets, rawValue);
}

QString translatedLabel(DateFormatPreset preset) {
    return QCoreApplication::translate("DateFormatPreset", textsOf(preset).label);
}

} // namespace quorvane
