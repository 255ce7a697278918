// SPDX-License-Identifier: MIT
#include "support/TestCompositor.h"

#include <gtest/gtest.h>

#include <backends/QtPlatformChoice.h>
#include <chrono>
#include <map>
#include <plasma-shell-client.h>
#include <string>
#include <virtual-keyboard-unstable-v1-client.h>
#include <wayland-server-core.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class PlatformOfQt : public testing::Test {
protected:
    TestCompositor m_compositor;
    std::map<std::string, QString> m_variables{{"DISPLAY", u":0"_s}};

    QtPlatform choice(std::chrono::milliseconds patience = 10s) {
        return chooseQtPlatform(
            environment(), Compositor::ask(m_compositor.environment(), patience));
    }

    [[nodiscard]] Environment environment() const {
        return [this](const char* name) {
            const auto found = m_variables.find(name);
            return found == m_variables.end() ? std::nullopt : std::optional(found->second);
        };
    }

    void offerVirtualKeyboards() { offer(zwp_virtual_keyboard_manager_v1_interface); }

    void offer(const wl_interface& interface) {
        m_compositor.run([&interface](wl_display* display) {
            wl_global_create(
                display,
                &interface,
                1,
                nullptr,
                [](wl_client*, void*, std::uint32_t, std::uint32_t) {});
        });
    }
};

TEST_F(PlatformOfQt, IsXWaylandWhereTheCompositorOffersLess) {
    EXPECT_EQ(choice(), QtPlatform::X11);
}

TEST_F(PlatformOfQt, IsQtsOwnChoiceWhereTheCompositorHasWhatWeNeed) {
    offerVirtualKeyboards();
    EXPECT_EQ(choice(), QtPlatform::Qts);
}

TEST_F(PlatformOfQt, IsXWaylandWhereTheCompositorPlacesTheWindowsOfItsShellAlone) {
    offerVirtualKeyboards();
    offer(org_kde_plasma_shell_interface);
    EXPECT_EQ(choice(), QtPlatform::X11);
}

TEST_F(PlatformOfQt, IsQtsOwnChoiceWithoutAnXServer) {
    m_variables.clear();
    EXPECT_EQ(choice(), QtPlatform::Qts);
}

TEST_F(PlatformOfQt, IsTheUsersWhereItIsSet) {
    m_variables["QT_QPA_PLATFORM"] = u"wayland"_s;
    EXPECT_EQ(choice(), QtPlatform::Qts);
}

TEST_F(PlatformOfQt, IsQtsOwnChoiceWithoutACompositor) {
    EXPECT_EQ(chooseQtPlatform(environment(), Compositor()), QtPlatform::Qts);
}

TEST_F(PlatformOfQt, IsX11WhereTheCompositorHangs) {
    offerVirtualKeyboards();
    m_compositor.hang();
    EXPECT_EQ(choice(50ms), QtPlatform::X11);
}

TEST_F(PlatformOfQt, IsNoneWhereTheCompositorHangsAndThereIsNothingElse) {
    m_compositor.hang();
    m_variables.clear();
    EXPECT_EQ(choice(50ms), QtPlatform::None);
    m_variables["QT_QPA_PLATFORM"] = u"wayland"_s;
    EXPECT_EQ(choice(50ms), QtPlatform::None);
}

TEST_F(PlatformOfQt, IsTheUsersWhereThatDoesNotNeedTheCompositor) {
    m_compositor.hang();
    m_variables["QT_QPA_PLATFORM"] = u"offscreen"_s;
    EXPECT_EQ(choice(50ms), QtPlatform::Qts);
}

TEST(PlatformSettingOfQt, IsNotLeftToTheProgramsThatAreStarted) {
    const auto before = qgetenv("QT_QPA_PLATFORM");
    qunsetenv("QT_QPA_PLATFORM");
    QtPlatformSetting setting(QtPlatform::X11);
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "xcb");
    setting.settle();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
    QtPlatformSetting(QtPlatform::Qts).settle();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
    qputenv("QT_QPA_PLATFORM", before);
}

} // namespace
} // namespace quorvane
