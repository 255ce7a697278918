// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <wayland_sway/SwayReports.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

// Cut from what sway 1.7 wrote.
const QByteArray switched = R"({"change":"focus","current":{"name":"2","output":"HEADLESS-1"},
    "old":{"name":"1","output":"HEADLESS-1"}})";
const QByteArray wentToOtherScreen = R"({"change":"focus","current":{"name":"2","output":"DP-1"},
    "old":{"name":"1","output":"HEADLESS-1"}})";
const QByteArray named = R"({"change":"title","container":{"id":6,"name":"Quorvane","pid":41,
    "focused":true,"rect":{"x":388,"y":156,"width":504,"height":488},
    "window_rect":{"x":2,"y":3,"width":500,"height":485}}})";
const QByteArray tree = R"({"id":1,"nodes":[{"id":2,"nodes":[],"floating_nodes":[
    {"id":5,"name":"Quorvane","pid":40,"nodes":[],"floating_nodes":[]},
    {"id":6,"name":"Quorvane","pid":41,"rect":{"x":10,"y":20,"width":504,"height":488},
     "window_rect":{"x":0,"y":0,"width":504,"height":488}}]}],"floating_nodes":[]})";

TEST(SwayReports, TellOfASwitchedWorkspace) {
    EXPECT_EQ(workspaceFocusIn(switched), (SwayWorkspaceFocus{u"HEADLESS-1"_s, true}));
}

TEST(SwayReports, TellOfAnotherScreenWhereNothingWasSwitched) {
    EXPECT_EQ(workspaceFocusIn(wentToOtherScreen), (SwayWorkspaceFocus{u"DP-1"_s, false}));
}

TEST(SwayReports, TellOfNothingElseThatHappensToWorkspaces) {
    EXPECT_EQ(workspaceFocusIn(R"({"change":"rename","current":{"output":"DP-1"}})"), std::nullopt);
}

TEST(SwayReports, TellOfAWindowThatTakesItsTitle) {
    EXPECT_EQ(
        namedWindowIn(named), (SwayWindow{6, 41, u"Quorvane"_s, true, QRect(390, 159, 500, 485)}));
    EXPECT_EQ(namedWindowIn(R"({"change":"focus","container":{"id":6}})"), std::nullopt);
}

TEST(SwayReports, AreOfAFrameThatCanBeReckonedWith) {
    const auto window = namedWindowIn(
        R"({"change":"title","container":{"rect":{"x":2147483647,"y":-2147483648},
            "window_rect":{"x":2147483647,"y":-2147483648,"width":2147483647,"height":-9}}})");
    ASSERT_TRUE(window);
    EXPECT_GT(window->frame.left(), 1'000'000);
    EXPECT_LT(window->frame.top(), -1'000'000);
    EXPECT_GT(window->frame.right(), window->frame.left());
}

TEST(SwayReports, FindTheWindowOfAProcessInTheTree) {
    const auto window = windowIn(tree, 41, u"Quorvane"_s);
    ASSERT_TRUE(window);
    EXPECT_EQ(window->id, 6);
    EXPECT_EQ(window->frame, QRect(10, 20, 504, 488));
    EXPECT_EQ(windowIn(tree, 41, u"Other"_s), std::nullopt);
}

TEST(SwayReports, FindTheScreenThatHasTheFocus) {
    EXPECT_EQ(
        focusedOutputIn(R"([{"output":"A","focused":false},{"output":"B","focused":true}])"),
        u"B"_s);
    EXPECT_EQ(focusedOutputIn("[]"), std::nullopt);
}

TEST(SwayReports, AreNoneOfWhatIsNotUnderstood) {
    for (const QByteArray payload :
         {"", "{", "null", "[1,2]", R"({"change":7})", R"({"nodes":{}})"}) {
        EXPECT_EQ(workspaceFocusIn(payload), std::nullopt);
        EXPECT_EQ(namedWindowIn(payload), std::nullopt);
        EXPECT_EQ(windowIn(payload, 1, u"a"_s), std::nullopt);
        EXPECT_EQ(focusedOutputIn(payload), std::nullopt);
    }
}

} // namespace
} // namespace quorvane
