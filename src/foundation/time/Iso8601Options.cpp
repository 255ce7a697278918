// SPDX-License-Identifier: MIT
#include <time/Iso8601Options.h>

#include <QStringList>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString datePattern(Iso8601Options options) {
    QStringList parts;
    if (options.contains(iso8601::year))
        parts.append(u"yyyy"_s);
    if (options.contains(iso8601::month))
        parts.append(u"MM"_s);
    if (options.contains(iso8601::day))
        parts.append(u"dd"_s);
    return parts.join(options.contains(iso8601::dashSeparatorInDate) ? "-"_L1 : ""_L1);
}

QString timePattern(Iso8601Options options) {
    if (!options.contains(iso8601::time))
        return {};
    return options.contains(iso8601::colonSeparatorInTime) ? u"HH:mm:ss"_s : u"HHmmss"_s;
}

QString zonePattern(Iso8601Options options) {
    if (!options.contains(iso8601::timeZone))
        return {};
    return options.contains(iso8601::colonSeparatorInTimeZone) ? u"XXXXX"_s : u"XXXX"_s;
}

} // namespace

QString iso8601Pattern(Iso8601Options options) {
    const auto date = datePattern(options);
    const auto time = timePattern(options);
    const auto separator = date.isEmpty() || time.isEmpty() ? ""_L1 : "'T'"_L1;
    return date + separator + time + zonePattern(options);
}

} // namespace quorvane
