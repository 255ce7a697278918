// SPDX-License-Identifier: MIT
#include "DateNames.h"

#include "IcuText.h"

#include <time/TypedText.h>

#include <QStringList>

#include <algorithm>
#include <array>
#include <functional>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Symbols = icu::DateFormatSymbols;

constexpr int ambiguous = -1;

constexpr std::array contexts{Symbols::FORMAT, Symbols::STANDALONE};
constexpr std::array widths{Symbols::WIDE, Symbols::ABBREVIATED, Symbols::SHORT};

void add(NumbersByName& numbers, const icu::UnicodeString& name, int number) {
    const auto text = comparableText(fromIcu(name));
    if (text.isEmpty())
        return;
    const auto [place, isNew] = numbers.try_emplace(text, number);
    if (!isNew && place->second != number)
        place->second = ambiguous;
}

NumbersByName withoutAmbiguous(NumbersByName numbers) {
    std::erase_if(numbers, [](const auto& entry) { return entry.second == ambiguous; });
    return numbers;
}

} // namespace

NumbersByName monthNames(const Symbols& symbols) {
    NumbersByName numbers;
    for (const auto context : contexts) {
        for (const auto width : widths) {
            int32_t count = 0;
            // Months have no names of the third width.
            const auto* names =
                width == Symbols::SHORT ? nullptr : symbols.getMonths(count, context, width);
            for (int32_t month = 0; month < count; ++month)
                add(numbers, names[month], month);
        }
    }
    return withoutAmbiguous(std::move(numbers));
}

NumbersByName weekdayNames(const Symbols& symbols) {
    NumbersByName numbers;
    for (const auto context : contexts) {
        for (const auto width : widths) {
            int32_t count = 0;
            const auto* names = symbols.getWeekdays(count, context, width);
            // The first one is empty: ICU counts weekdays from 1.
            for (int32_t weekday = 1; weekday < count; ++weekday)
                add(numbers, names[weekday], weekday - 1);
        }
    }
    return withoutAmbiguous(std::move(numbers));
}

std::vector<QString> eraNames(const Symbols& symbols) {
    std::vector<QString> names;
    using GetEras = const icu::UnicodeString* (Symbols::*) (int32_t&) const;
    for (const GetEras get : {&Symbols::getEras, &Symbols::getEraNames, &Symbols::getNarrowEras}) {
        int32_t count = 0;
        const auto* eras = (symbols.*get)(count);
        // A year is of the present era.
        if (count > 0)
            names.push_back(comparableText(fromIcu(eras[count - 1])));
    }
    return names;
}

QString anyOf(std::vector<QString> names) {
    std::ranges::sort(names, std::ranges::greater(), &QString::size);
    QStringList expressions;
    for (const auto& name : names)
        expressions.append(looseExpression(name));
    return u"(?:"_s + expressions.join(u'|') + u')';
}

std::vector<QString> namesIn(const NumbersByName& numbers) {
    std::vector<QString> names;
    for (const auto& [name, number] : numbers)
        names.push_back(name);
    return names;
}

} // namespace quorvane
