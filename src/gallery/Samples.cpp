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

UserLocale locale() {
    return UserLocale::named(u"en_US"_s);
}

EntrySurroundings entrySurroundings() {
    static const NewYork newYork;
    return {clock(), newYork, locale(), {}};
}

} // namespace quorvane::sample
