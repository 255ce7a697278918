// SPDX-License-Identifier: MIT
#include <platform/LayeredAppearance.h>
#include <platform_tray/TrayStatusBar.h>
#include <platform_xdg/XdgSoftwareCentre.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <backends/PlatformChoice.h>
#include <string_view>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class BackendsTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    MemoryDefaults defaults;

    PlatformServices services(const QString& forced, const QString& qtPlatform) {
        const Environment environment = [forced](const char* name) {
            return std::string_view(name) == "QUORVANE_BACKEND" ? std::optional(forced)
                                                                : std::nullopt;
        };
        const Compositor none;
        return makePlatformServices({environment, qtPlatform, queue, defaults, none});
    }
};

TEST_F(BackendsTest, ServicesThatNeedNoCertainDisplayAreThereOnEveryDisplay) {
    for (const auto& qtPlatform : {u"xcb"_s, u"wayland"_s, u"offscreen"_s}) {
        const auto made = services(u"null"_s, qtPlatform);
        EXPECT_NE(dynamic_cast<TrayStatusBar*>(made.statusBar.get()), nullptr);
        EXPECT_NE(dynamic_cast<LayeredAppearance*>(made.appearance.get()), nullptr);
        EXPECT_NE(dynamic_cast<XdgSoftwareCentre*>(made.softwareCentre.get()), nullptr);
    }
}

TEST_F(BackendsTest, CopyWorksWhereNoBackendHasAClipboard) {
    const auto made = services({}, u"offscreen"_s);
    EXPECT_EQ(
        made.pasteboard->setString(u"noon"_s, TextStay::Lasting, PasteSource::Clipboard),
        PutOutcome::Taken);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"noon"_s);
}

TEST_F(BackendsTest, NothingIsTypedWhereNoBackendCan) {
    const auto made = services({}, u"wayland"_s);
    EXPECT_FALSE(made.accessibilityRight->isTrusted());
    EXPECT_EQ(made.keyPoster->pasteTarget(), std::nullopt);
}

} // namespace
} // namespace quorvane
