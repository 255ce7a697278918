// SPDX-License-Identifier: MIT
#include "PanelPlay.h"
#include "PopUpButton.h"
#include "Section.h"

#include <controls/ActionButton.h>
#include <controls/SegmentedRow.h>
#include <controls/TextField.h>
#include <entry/FieldChip.h>
#include <panel/OutputPreview.h>
#include <panel/ZoneChip.h>

#include <QApplication>
#include <QStyle>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace quorvane {
namespace {

// The two edges that everything stands between, and the gaps down the panel, in points.
constexpr int firstEdge = 18;
constexpr int lastEdge = 486;
constexpr int headerHeight = 48;
constexpr int gap = 14;
constexpr int labelHeight = 24;
constexpr int labelGap = 6;

/// From the first to the last point of a row of controls; the row is known by its top.
struct Extent {
    int first = lastEdge;
    int last = 0;

    void add(const QRect& place) {
        first = std::min(first, place.left());
        last = std::max(last, place.x() + place.width());
    }
};

/// Where a widget stands in the panel, seen from the side where reading begins.
QRect placeOf(const QWidget& widget, const QWidget& panel) {
    const QRect place(widget.mapTo(&panel, QPoint()), widget.size());
    return QStyle::visualRect(QApplication::layoutDirection(), panel.rect(), place);
}

template <typename... Kinds>
std::map<int, Extent> rowsOf(const QWidget& panel) {
    std::map<int, Extent> rows;
    const auto add = [&](const auto& widgets) {
        for (const auto* widget : widgets) {
            if (widget->isVisible() && widget->window() == &panel)
                rows[placeOf(*widget, panel).top()].add(placeOf(*widget, panel));
        }
    };
    (add(panel.findChildren<Kinds*>()), ...);
    return rows;
}

/// Two zones, two dates and a pattern: every kind of row there is.
void composeEverything(DateTimeModel& model) {
    sample::composeRange(model, sample::later);
    model.setFormatPreset(DateFormatPreset::Custom);
    model.setCustomFormatString(QStringLiteral("EEE d MMM, HH:mm zzz"));
}

class PanelEdges : public testing::TestWithParam<BoardSetting> {
protected:
    AppliedSetting applied{GetParam()};
    PanelPlay play{GetParam(), composeEverything};
};

TEST_P(PanelEdges, EveryRowOfFramesBeginsAtTheFirstEdgeAndStaysWithinTheLast) {
    const auto rows = rowsOf<
        FieldChip,
        ZoneChip,
        PopUpButton,
        SegmentedRow,
        TextField,
        OutputPreview,
        ActionButton>(play.view());
    // Two rows of dates, one or two of zones, choices, pattern, output, buttons.
    ASSERT_GE(rows.size(), 7U);
    for (const auto& [top, row] : rows) {
        EXPECT_EQ(row.first, firstEdge) << "at " << top;
        EXPECT_LE(row.last, lastEdge) << "at " << top;
    }
}

TEST_P(PanelEdges, RowsThatFillTheColumnEndAtTheLastEdge) {
    const auto rows =
        rowsOf<PopUpButton, SegmentedRow, TextField, OutputPreview, ActionButton>(play.view());
    ASSERT_EQ(rows.size(), 4U);
    for (const auto& [top, row] : rows)
        EXPECT_EQ(row.last, lastEdge) << "at " << top;
}

TEST_P(PanelEdges, SectionsStandInEqualGapsDownThePanel) {
    int end = headerHeight;
    for (const auto* section : play.view().findChildren<Section*>()) {
        const auto place = placeOf(*section, play.view());
        EXPECT_EQ(place.top() - end, gap);
        end = place.top() + place.height();
    }
    const auto* insert = play.view().findChildren<ActionButton*>().last();
    const auto bar = placeOf(*insert->parentWidget(), play.view());
    EXPECT_EQ(bar.top() - end, gap);
    EXPECT_EQ(bar.bottom(), play.view().rect().bottom());
}

TEST_P(PanelEdges, ContentStandsBelowItsLabel) {
    const auto rows = rowsOf<FieldChip, ZoneChip, PopUpButton, OutputPreview>(play.view());
    for (const auto* section : play.view().findChildren<Section*>()) {
        const int top = placeOf(*section, play.view()).top() + labelHeight + labelGap;
        EXPECT_TRUE(rows.contains(top)) << section->accessibleName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Settings, PanelEdges, testing::ValuesIn(boardSettings()), testing::PrintToStringParamName());

} // namespace
} // namespace quorvane
