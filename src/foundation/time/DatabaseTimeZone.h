// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

#include <unicode/timezone.h>

#include <limits>
#include <memory>
#include <optional>

namespace quorvane {

/// A zone of the system's database as one of ICU's. Total offsets are the system's. How a total
/// splits into standard and daylight time decides which name ICU prints. It is ICU's own split
/// where the totals agree, because the names were made for it; elsewhere the one whose name means
/// the total, for laws change faster than ICU's data: British Columbia's UTC-7 all year is "PDT".
class DatabaseTimeZone final : public icu::TimeZone {
public:
    explicit DatabaseTimeZone(const quorvane::TimeZone& zone);
    DatabaseTimeZone(const DatabaseTimeZone& other);
    DatabaseTimeZone& operator=(const DatabaseTimeZone&) = delete;

    int32_t getOffset(
        uint8_t era,
        int32_t year,
        int32_t month,
        int32_t day,
        uint8_t dayOfWeek,
        int32_t milliseconds,
        UErrorCode& status) const override;
    int32_t getOffset(
        uint8_t era,
        int32_t year,
        int32_t month,
        int32_t day,
        uint8_t dayOfWeek,
        int32_t milliseconds,
        int32_t monthLength,
        UErrorCode& status) const override;
    void getOffset(
        UDate date,
        UBool isLocal,
        int32_t& rawOffset,
        int32_t& daylightOffset,
        UErrorCode& status) const override;
    int32_t getRawOffset() const override;
    void setRawOffset(int32_t milliseconds) override;
    UBool useDaylightTime() const override;
    UBool inDaylightTime(UDate date, UErrorCode& status) const override;
    DatabaseTimeZone* clone() const override;
    UClassID getDynamicClassID() const override;

    /// Whether ICU's name for the zone, standard or daylight, means the offset in force. If not,
    /// nothing but the offset itself says the truth.
    [[nodiscard]] bool hasNameAt(UDate date) const { return offsetAt(date).hasName; }

    /// ICU's own zone of that name; null if ICU does not know it.
    [[nodiscard]] const icu::TimeZone* own() const { return m_own.get(); }

private:
    /// In milliseconds.
    struct Offset {
        int32_t raw = 0;
        int32_t daylight = 0;
        bool hasName = false;

        [[nodiscard]] int32_t total() const { return raw + daylight; }
    };

    [[nodiscard]] Offset offsetAt(UDate date) const;
    [[nodiscard]] Offset computedOffsetAt(UDate date) const;
    [[nodiscard]] std::optional<Offset> namedOffset(int32_t total, UDate date) const;
    [[nodiscard]] Offset offsetAtLocal(UDate local) const;

    quorvane::TimeZone m_zone;
    std::unique_ptr<icu::TimeZone> m_own; ///< null if ICU does not know the zone

    /// Caches the last answer: for one text ICU asks for the same date two or three times, and
    /// offsets never change.
    mutable UDate m_lastDate = std::numeric_limits<UDate>::quiet_NaN();
    mutable Offset m_lastOffset;
};

} // namespace quorvane
