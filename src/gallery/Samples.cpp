// SPDX-License-Identifier: MIT
#include "Samples.h"

namespace quorvane::sample {

using namespace Qt::StringLiterals;

namespace {

class StoppedClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override { return sample::now; }
};

class NewYork final : public CurrentZone {
public:
    [[nodiscard]] TimeZone current() const override {
        return zones().zone(u"America/New_York"_s).value_or(ZoneDatabase::utc());
    }
};

} // namespace

const ZoneDatabase& zones() {
    static const ZoneDatabase database;
    return database;
}

const Clock& clock() {
    static const StoppedClock stopped;
    return stopped;
}

const CurrentZone& currentZone() {
    static const NewYork newYork;
    return newYork;
}

UserLocale locale() {
    return UserLocale::named(u"en_US"_s);
}

EntryDependencies entryDependencies() {
    return {clock(), currentZone(), locale(), {}};
}

void selectZones(DateTimeModel& model, const QStringList& identifiers) {
    std::vector<TimeZone> selected;
    for (const auto& identifier : identifiers) {
        if (const auto zone = zones().zone(identifier))
            selected.push_back(*zone);
    }
    model.setSelectedTimeZones(std::move(selected));
}

void composeRange(DateTimeModel& model, Instant end) {
    model.setIsRange(true);
    model.setEndDate(end);
    selectZones(
        model,
        {u"America/New_York"_s, u"America/Los_Angeles"_s, u"Europe/London"_s, u"Asia/Tokyo"_s});
    model.setFormatPreset(DateFormatPreset::MediumForm);
    model.setMultiZoneLayout(MultiZoneLayout::Lines);
}

} // namespace quorvane::sample
