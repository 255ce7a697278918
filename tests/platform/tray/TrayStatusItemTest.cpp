// SPDX-License-Identifier: MIT
#include "support/FakeXEmbedHost.h"
#include "support/WaitUntil.h"

#include <platform_tray/TrayStatusBar.h>

#include <QPixmap>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class TrayStatusItemTest : public testing::Test {
protected:
    TrayStatusBar bar{QDBusConnection(u"no such connection"_s)};
    std::unique_ptr<StatusItem> item = bar.makeStatusItem({{u"Quit"_s, {}, [] {
                                                            }}});

    static QIcon image() {
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::black);
        return pixmap;
    }
};

TEST_F(TrayStatusItemTest, WithoutAHostItIsThereAndHasNoButton) {
    ASSERT_TRUE(item);
    EXPECT_FALSE(item->isVisible());
    item->setImage(image(), u"Quorvane"_s);
    item->setVisible(true);
    EXPECT_TRUE(item->isVisible());
    EXPECT_FALSE(item->hasButton());
    EXPECT_EQ(item->frame(), std::nullopt);
}

TEST_F(TrayStatusItemTest, WithoutAHostAClickGoesNowhere) {
    int clicks = 0;
    item->onClicked([&](StatusItem::Click) { ++clicks; });
    item->performClick();
    EXPECT_EQ(clicks, 0);
}

TEST_F(TrayStatusItemTest, HasAButtonWhileAHostIsThere) {
    item->setImage(image(), u"Quorvane"_s);
    item->setVisible(true);
    std::optional<FakeXEmbedHost> host(std::in_place);
    EXPECT_TRUE(waitUntil([&] { return item->hasButton(); }));
    host.reset();
    EXPECT_TRUE(waitUntil([&] { return !item->hasButton(); }));
    EXPECT_EQ(item->frame(), std::nullopt);
}

TEST_F(TrayStatusItemTest, HasNoPlaceBeforeTheHostHasTakenItIn) {
    const FakeXEmbedHost host;
    item->setImage(image(), u"Quorvane"_s);
    item->setVisible(true);
    EXPECT_TRUE(waitUntil([&] { return item->hasButton(); }));
    EXPECT_EQ(item->frame(), std::nullopt);
}

TEST_F(TrayStatusItemTest, AClickOfOursIsALeftOneWhileNoMenuIsAttached) {
    const FakeXEmbedHost host;
    EXPECT_TRUE(waitUntil([&] { return item->hasButton(); }));
    std::vector<StatusItem::Click> clicks;
    item->onClicked([&](StatusItem::Click click) { clicks.push_back(click); });
    item->performClick();
    EXPECT_EQ(clicks, std::vector{StatusItem::Click::Left});
}

} // namespace
} // namespace quorvane
