// SPDX-License-Identifier: MIT
#include "support/TestClipboard.h"
#include "support/TestCompositor.h"

#include <loop/QtMainQueue.h>
#include <platform_qt/QtPasteboard.h>
#include <support/WaitUntil.h>
#include <testing/MemoryDefaults.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <backends/PlatformChoice.h>
#include <chrono>
#include <optional>
#include <string_view>
#include <wayland_clipboard/WaylandPasteboard.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The services that are chosen on a compositor that has the clipboard and nothing else.
class ServiceChoice : public testing::Test {
protected:
    PlatformServices
    choose(const QString& forced = {}, const QString& qtPlatform = u"offscreen"_s) {
        const Environment environment = [forced](const char* name) {
            return std::string_view(name) == "QUORVANE_BACKEND" ? std::optional(forced)
                                                                : std::nullopt;
        };
        const auto compositor = Compositor::ask(m_compositor.environment(), 10s);
        return makePlatformServices(
            {environment, qtPlatform, m_queue, m_defaults, compositor, [this] {
                 ++m_displaysLost;
             }});
    }

    static std::optional<ServiceState>
    stateOf(const PlatformServices& services, DesktopService service) {
        const auto found = std::ranges::find(services.states, service, &ServiceState::service);
        return found != services.states.end() ? std::optional(*found) : std::nullopt;
    }

    TestCompositor m_compositor;
    TestClipboard m_clipboard{m_compositor, TestClipboard::Protocol::Ext};
    QtMainQueue m_queue;
    MemoryDefaults m_defaults;
    int m_displaysLost = 0;
};

TEST_F(ServiceChoice, TakesTheClipboardOfTheCompositorWhateverQtRunsOn) {
    for (const auto& qtPlatform : {u"offscreen"_s, u"wayland"_s}) {
        const auto services = choose({}, qtPlatform);
        EXPECT_NE(dynamic_cast<WaylandPasteboard*>(services.pasteboard.get()), nullptr);
    }
}

TEST_F(ServiceChoice, LeavesAServiceToTheOneThatIsForced) {
    const auto services = choose(u"clipboard=null"_s);
    EXPECT_NE(dynamic_cast<QtPasteboard*>(services.pasteboard.get()), nullptr);
    const auto others = choose(u"keys=null"_s);
    EXPECT_NE(dynamic_cast<WaylandPasteboard*>(others.pasteboard.get()), nullptr);
}

TEST_F(ServiceChoice, TellsTheUserWhatIsMissing) {
    const auto services = choose();
    const auto clipboard = stateOf(services, DesktopService::Clipboard);
    ASSERT_TRUE(clipboard);
    EXPECT_TRUE(clipboard->isWhole);
    const auto typing = stateOf(services, DesktopService::Typing);
    ASSERT_TRUE(typing);
    EXPECT_FALSE(typing->isWhole);
    EXPECT_THAT(typing->explanation.toStdString(), Not(IsEmpty()));
}

TEST_F(ServiceChoice, OutlivesACompositorThatQtDoesNotRunOn) {
    const auto services = choose();
    testing::internal::CaptureStderr();
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([&] {
        return services.pasteboard->setString(
                   u"noon"_s, TextStay::Lasting, PasteSource::Clipboard) == PutOutcome::Refused;
    }));
    EXPECT_THAT(
        testing::internal::GetCapturedStderr(), HasSubstr("the connection to the compositor"));
    EXPECT_EQ(m_displaysLost, 0);
}

TEST_F(ServiceChoice, TellsThatTheDisplayIsLostWhereQtRunsOnIt) {
    const auto services = choose({}, u"wayland"_s);
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([&] { return m_displaysLost == 1; }));
}

} // namespace
} // namespace quorvane
