// SPDX-License-Identifier: MIT
#include "FuzzInput.h"
#include "Samples.h"

#include <time/TypedTime.h>

#include <map>
#include <string>

using namespace quorvane;

namespace {

const TypedTimeReader& readerFor(const UserLocale& locale) {
    static std::map<std::string, TypedTimeReader> readers;
    return readers.try_emplace(locale.icuLocale().getName(), locale).first->second;
}

} // namespace

/// Any text in the field for a time of day.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const auto& reader = readerFor(samples::locale(input));
    const auto time = reader.read(input.restAsText());
    if (time.state != TypingState::Complete)
        return 0;
    demand(time.hour >= 0 && time.hour <= 23, "an hour of the day");
    demand(!time.minute || (*time.minute >= 0 && *time.minute <= 59), "a minute of the hour");
    demand(time.minute || time.hasPeriod, "an hour alone has a word");
    return 0;
}
