// SPDX-License-Identifier: MIT
#include "EntryFixture.h"

#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <entry/DateField.h>
#include <entry/TimeField.h>
#include <support/SymbolSearch.h>

#include <QFontMetricsF>

#include <cmath>

namespace quorvane {
namespace {

class FieldChipMeasuresTest : public EntryFixture {
protected:
    DateField day{binding(), {}, dependencies(), &window};
    TimeField time{binding(), {}, dependencies(), &window};
};

TEST_F(FieldChipMeasuresTest, SymbolIsFiveBeforeTheTextAndBothTenFromTheFrame) {
    for (FieldChip* chip : {static_cast<FieldChip*>(&day), static_cast<FieldChip*>(&time)}) {
        const QFontMetricsF metrics(textFont(chip->font(), TextStyle::Callout));
        const int text = static_cast<int>(std::ceil(metrics.horizontalAdvance(chip->text())));
        EXPECT_EQ(chip->sizeHint(), QSize(10 + 12 + 5 + text + 10, 30));
    }
}

TEST_F(FieldChipMeasuresTest, SymbolStandsAtTheStartInTheMiddle) {
    day.resize(day.sizeHint());
    const auto color = Theme::of(window.palette()).secondaryText;
    EXPECT_EQ(
        placeOf({Symbol::Calendar, {12, SymbolStyle::semibold}, color}, day), QRect(10, 9, 12, 12));
    time.resize(time.sizeHint());
    EXPECT_EQ(
        placeOf({Symbol::Clock, {12, SymbolStyle::semibold}, color}, time), QRect(10, 9, 12, 12));
}

} // namespace
} // namespace quorvane
