// SPDX-License-Identifier: MIT
#include <controls/PopoverPlacement.h>

#include <gtest/gtest.h>

#include <ostream>

namespace quorvane {
namespace {

constexpr auto left = PopoverAlignment::LeftEdges;
constexpr auto right = PopoverAlignment::RightEdges;
constexpr QRect screen(0, 0, 1000, 800);
constexpr QRect secondScreen(1000, -200, 800, 600);
constexpr QRect belowBar(0, 30, 1000, 770);

struct Placement {
    const char* name;
    QRect anchor;
    QSize size;
    QRect available;
    PopoverAlignment alignment;
    QPoint expected;
};

void PrintTo(const Placement& placement, std::ostream* out) {
    *out << placement.name;
}

class PopoverPlacement : public testing::TestWithParam<Placement> {};

TEST_P(PopoverPlacement, IsWhereItBelongs) {
    const auto& row = GetParam();
    const auto placed = popoverPlacement(row.anchor, row.size, row.available, row.alignment);
    EXPECT_EQ(placed.size(), row.size);
    EXPECT_EQ(placed.x(), row.expected.x());
    EXPECT_EQ(placed.y(), row.expected.y());
}

INSTANTIATE_TEST_SUITE_P(
    Everywhere,
    PopoverPlacement,
    testing::Values(
        Placement{"Below", {100, 100, 80, 30}, {200, 150}, screen, left, {100, 136}},
        Placement{"RightEdges", {400, 100, 80, 30}, {200, 150}, screen, right, {280, 136}},
        Placement{"BelowJustFits", {100, 606, 80, 30}, {200, 150}, screen, left, {100, 642}},
        Placement{"AboveByOne", {100, 607, 80, 30}, {200, 150}, screen, left, {100, 451}},
        Placement{"AboveJustFits", {100, 164, 80, 600}, {200, 150}, screen, left, {100, 8}},
        Placement{"NeitherShifts", {100, 163, 80, 600}, {200, 150}, screen, left, {100, 642}},
        Placement{"ShiftedFromTheRight", {900, 100, 80, 30}, {200, 150}, screen, left, {792, 136}},
        Placement{"ShiftedFromTheLeft", {2, 100, 80, 30}, {200, 150}, screen, right, {8, 136}},
        Placement{"AnchorOffTheLeft", {-40, 100, 80, 30}, {200, 150}, screen, left, {8, 136}},
        Placement{"AnchorAboveTheScreen", {50, -90, 80, 30}, {200, 150}, screen, left, {50, 8}},
        Placement{"BelowTheBar", {50, 2, 80, 10}, {200, 150}, belowBar, left, {50, 38}},
        Placement{"TallerThanScreen", {50, 400, 80, 30}, {200, 900}, screen, left, {50, 8}},
        Placement{"WiderThanScreen", {50, 100, 80, 30}, {1200, 150}, screen, left, {8, 136}},
        Placement{"WiderByRightEdges", {50, 100, 80, 30}, {1200, 150}, screen, right, {8, 136}},
        Placement{
            "SecondScreen", {1100, -150, 80, 30}, {200, 150}, secondScreen, left, {1100, -114}},
        Placement{
            "SecondScreensCorner",
            {1750, 350, 40, 30},
            {200, 150},
            secondScreen,
            left,
            {1592, 194}},
        Placement{
            "SecondScreensLeft",
            {1001, -150, 20, 30},
            {200, 150},
            secondScreen,
            right,
            {1008, -114}}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace quorvane
