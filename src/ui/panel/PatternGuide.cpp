// SPDX-License-Identifier: MIT
#include "PatternGuide.h"

#include <QCoreApplication>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PatternGuide)
};

} // namespace

std::vector<PatternHint> readyPatterns() {
    return {
        {u"yyyy-MM-dd HH:mm"_s, Texts::tr("24 hours")},
        {u"yyyy-MM-dd h:mm a"_s, Texts::tr("12 hours")},
        {u"EEEE d MMMM yyyy"_s, Texts::tr("Long date")},
        {u"YYYY-'W'ww"_s, Texts::tr("ISO week")},
        {u"QQQ yyyy"_s, Texts::tr("Quarter")},
        {u"EEEE 'at' HH:mm zzz"_s, Texts::tr("Words in quotes")},
        {u"h 'o''clock' a"_s, Texts::tr("An apostrophe")},
        {u"yyyyMMdd-HHmmss"_s, Texts::tr("File name")},
    };
}

std::vector<PatternHint> patternLetters() {
    return {
        {u"yyyy"_s, Texts::tr("Year")},
        {u"QQQ"_s, Texts::tr("Quarter")},
        {u"MMMM"_s, Texts::tr("Month")},
        {u"MMM"_s, Texts::tr("Month, short")},
        {u"MM"_s, Texts::tr("Month, number")},
        {u"dd"_s, Texts::tr("Day")},
        {u"EEEE"_s, Texts::tr("Weekday")},
        {u"EEE"_s, Texts::tr("Weekday, short")},
        {u"ww"_s, Texts::tr("Week")},
        {u"HH"_s, Texts::tr("Hour of 24")},
        {u"h"_s, Texts::tr("Hour of 12")},
        {u"a"_s, Texts::tr("AM or PM")},
        {u"mm"_s, Texts::tr("Minute")},
        {u"ss"_s, Texts::tr("Second")},
        {u"zzz"_s, Texts::tr("Time zone")},
        {u"xxx"_s, Texts::tr("Offset")},
    };
}

} // namespace quorvane
