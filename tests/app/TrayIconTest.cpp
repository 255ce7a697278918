// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <controls/SymbolIcon.h>

#include <QApplication>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class TrayIconTest : public DelegateFixture {
protected:
    static QStringList titles(const StatusMenu& menu) {
        QStringList titles;
        for (const auto& entry : menu)
            titles.append(entry.isSeparator() ? u"-"_s : entry.title);
        return titles;
    }

    [[nodiscard]] QImage pictureShown() const { return statusBar->image.pixmap(22).toImage(); }

    static QImage pictureIn(const SymbolColors& colors) {
        return symbolIcon(Symbol::CalendarBadgeClock, colors).pixmap(22).toImage();
    }

    const QStringList menuTitles{
        u"Preferences…"_s, u"Check for Updates…"_s, u"-"_s, u"Quit Quorvane"_s};
};

TEST_F(TrayIconTest, RightClickOpensTheMenuAndTheNextLeftClickTogglesAgain) {
    launch();
    queue.run();
    log.clear();
    statusBar->click(StatusItem::Click::Right);
    EXPECT_EQ(titles(statusBar->attachedMenu()), menuTitles);
    EXPECT_THAT(calls(), ElementsAre("click", "attachMenu", "performClick"));
    // While the menu is attached, any click opens it again.
    statusBar->click(StatusItem::Click::Left);
    EXPECT_TRUE(isShown(panel()));
    queue.run();
    EXPECT_EQ(calls().back(), "detachMenu");
    statusBar->click(StatusItem::Click::Left);
    EXPECT_FALSE(isShown(panel()));
}

// A bar that draws the menu itself may open it for the left click, too.
TEST_F(TrayIconTest, PublishedMenuIsTheSameAfterAnEntryForTheInterface) {
    launch();
    EXPECT_EQ(titles(statusBar->publishedMenu), QStringList(u"Show Quorvane"_s) + menuTitles);
    EXPECT_EQ(statusBar->publishedMenu[0].keys, QKeySequence());
    EXPECT_EQ(statusBar->publishedMenu[1].keys, QKeySequence(u"Ctrl+,"_s));
    EXPECT_EQ(statusBar->publishedMenu[2].keys, QKeySequence());
    EXPECT_EQ(statusBar->publishedMenu[4].keys, QKeySequence(u"Ctrl+Q"_s));
}

TEST_F(TrayIconTest, PublishedMenuShowsTheInterfaceAndKeepsItShown) {
    launch();
    queue.run();
    pressShortcut();
    ASSERT_FALSE(isShown(panel()));
    statusBar->publishedMenu[0].run();
    EXPECT_TRUE(isShown(panel()));
    statusBar->publishedMenu[0].run();
    EXPECT_TRUE(isShown(panel()));
    EXPECT_EQ(calls().back(), "presentPanel");
}

TEST_F(TrayIconTest, MenuOpensPreferencesAndUpdatesAndQuits) {
    launch();
    log.clear();
    statusBar->publishedMenu[1].run();
    EXPECT_TRUE(isShown(preferences()));
    statusBar->publishedMenu[2].run();
    EXPECT_EQ(calls().back(), "showPage org.quorvane.Quorvane");
    statusBar->publishedMenu[4].run();
    queue.run();
    EXPECT_EQ(calls().back(), "handOver");
}

TEST_F(TrayIconTest, MenuThatOutlivesTheDelegateDoesNothing) {
    launch();
    // A desktop may hold the menu longer than the program holds the icon.
    const auto menu = statusBar->publishedMenu;
    delegate.reset();
    log.clear();
    for (const auto& entry : menu) {
        if (entry.run)
            entry.run();
    }
    EXPECT_TRUE(calls().empty());
}

TEST_F(TrayIconTest, StoredSwitchIsAppliedOnTheEventLoopIterationAfterTheLaunch) {
    defaults.setBool(u"showInMenuBar"_s, false);
    makeDelegate();
    launch();
    EXPECT_TRUE(statusBar->isItemVisible());
    queue.run();
    EXPECT_FALSE(statusBar->isItemVisible());
    delegate->model().setShowInMenuBar(true);
    queue.run();
    EXPECT_TRUE(statusBar->isItemVisible());
}

TEST_F(TrayIconTest, ItemThatCouldNotBeMadeIsMadeOnDemand) {
    statusBar->makesItems = false;
    launch();
    queue.run();
    statusBar->makesItems = true;
    delegate->model().setShowInMenuBar(true);
    queue.run();
    EXPECT_TRUE(statusBar->isItemVisible());
}

TEST_F(TrayIconTest, PictureFollowsThePalette) {
    launch();
    log.clear();
    QPalette dark;
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    EXPECT_THAT(calls(), testing::Contains("setImage Quorvane"));
    QApplication::setPalette(QPalette());
}

TEST_F(TrayIconTest, IconIsInTheColourThatTheBarWritesIn) {
    statusBar->textColor = Qt::green;
    launch();
    EXPECT_EQ(pictureShown(), pictureIn({Qt::green}));
    statusBar->changeTextColor(Qt::red);
    EXPECT_EQ(pictureShown(), pictureIn({Qt::red}));
}

TEST_F(TrayIconTest, HaloIsSeenOnlyWhileNothingIsKnownOfTheBar) {
    launch();
    const auto ofDesktop = SymbolColors::of(QApplication::palette());
    EXPECT_EQ(pictureShown(), pictureIn(ofDesktop));
    // The palette is the same: light, as it was assumed to be.
    appearance->change({.scheme = DesktopAppearance::Scheme::Light});
    delegate->appearanceChanged();
    EXPECT_EQ(pictureShown(), pictureIn({ofDesktop.color}));
    EXPECT_NE(pictureIn({ofDesktop.color}), pictureIn(ofDesktop));
    statusBar->changeTextColor(Qt::white);
    EXPECT_EQ(pictureShown(), pictureIn({Qt::white}));
}

} // namespace
} // namespace quorvane
