// SPDX-License-Identifier: MIT
#include <platform_x11/XWayland.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

struct Session {
    const char* name;
    XWaylandEvidence evidence;
    bool isXWayland;
};

class XWaylandTest : public testing::TestWithParam<Session> {};

TEST_P(XWaylandTest, IsToldFromOtherServers) {
    EXPECT_EQ(isXWayland(GetParam().evidence), GetParam().isXWayland) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Sessions,
    XWaylandTest,
    testing::Values(
        Session{"of X11", {false, u"x11"_s, {}}, false},
        Session{
            "of X11, with what an earlier session left behind",
            {false, u"x11"_s, u"wayland-0"_s},
            false},
        Session{"that was started from a terminal", {false, u"tty"_s, {}}, false},
        Session{"that says nothing", {false, {}, {}}, false},
        Session{"of Wayland", {true, u"wayland"_s, u"wayland-0"_s}, true},
        Session{"of Wayland, with an old server", {false, u"wayland"_s, u"wayland-0"_s}, true},
        Session{"of Wayland that hides it", {true, {}, {}}, true},
        Session{
            "of Wayland without its type, with an old server", {false, {}, u"wayland-0"_s}, true},
        Session{
            "of Wayland, from a terminal, with an old server",
            {false, u"tty"_s, u"wayland-1"_s},
            true}));

} // namespace
} // namespace quorvane
