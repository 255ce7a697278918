// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

#include <unicode/tzfmt.h>

#include <memory>

namespace quorvane {

/// What ICU writes for zones, except that a name is written only if it means the offset in force.
/// For a zone whose law is newer than ICU's data it may mean another one; then the text is the
/// locale's form of the offset, "GMT-5".
class ZoneTextFormat final : public icu::TimeZoneFormat {
public:
    /// Null if ICU has no data.
    [[nodiscard]] static std::unique_ptr<icu::TimeZoneFormat> make(const UserLocale& locale);

    using icu::TimeZoneFormat::format;
    icu::UnicodeString& format(
        UTimeZoneFormatStyle style,
        const icu::TimeZone& zone,
        UDate date,
        icu::UnicodeString& text,
        UTimeZoneFormatTimeType* timeType) const override;
    ZoneTextFormat* clone() const override;
    UClassID getDynamicClassID() const override;

private:
    explicit ZoneTextFormat(const icu::TimeZoneFormat& format) : icu::TimeZoneFormat(format) {}
};

} // namespace quorvane
