// SPDX-License-Identifier: MIT
#include "AppearanceFollower.h"

#include <controls/Theme.h>
#include <testing/FakeAppearance.h>

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using PaletteFrom = AppearanceFollower::PaletteFrom;
using FontFrom = AppearanceFollower::FontFrom;
using Scheme = DesktopAppearance::Scheme;

class AppearanceFollowerTest : public testing::Test {
protected:
    FakeAppearance desktop;

    ~AppearanceFollowerTest() override {
        QApplication::setPalette(QPalette());
        QApplication::setStyle(u"fusion"_s);
    }

    static QColor background() { return QApplication::palette().color(QPalette::Window); }

    static int animationDuration() {
        return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    }
};

TEST_F(AppearanceFollowerTest, StylesOwnPaletteComesFromNoDesktop) {
    EXPECT_EQ(AppearanceFollower::paletteSource(), PaletteFrom::BuiltIn);
    QApplication::setPalette(QPalette(Qt::darkGreen));
    EXPECT_EQ(AppearanceFollower::paletteSource(), PaletteFrom::Desktop);
}

TEST_F(AppearanceFollowerTest, WithoutAPreferenceThePaletteIsLight) {
    const AppearanceFollower follower(desktop, PaletteFrom::BuiltIn, FontFrom::Desktop);
    EXPECT_EQ(background(), QColor(0xf6f6f8));
}

TEST_F(AppearanceFollowerTest, SchemeAccentAndContrastAreFollowedAtOnce) {
    const AppearanceFollower follower(desktop, PaletteFrom::BuiltIn, FontFrom::Desktop);
    desktop.change({.scheme = Scheme::Dark});
    EXPECT_EQ(background(), QColor(0x1d1e21));
    EXPECT_EQ(Theme::of(QApplication::palette()).accent, QColor(0x4666ea));
    desktop.change({.scheme = Scheme::Light, .accent = DesktopAppearance::Accent{0.6, 0, 0}});
    EXPECT_EQ(background(), QColor(0xf6f6f8));
    EXPECT_EQ(Theme::of(QApplication::palette()).accent, QColor(0x990000));
    desktop.change({.wantsMoreContrast = true});
    EXPECT_EQ(background(), QColor(Qt::white));
    EXPECT_EQ(Theme::of(QApplication::palette()).border, QColor(Qt::black));
    desktop.change({.scheme = Scheme::Dark, .wantsMoreContrast = true});
    EXPECT_EQ(background(), QColor(Qt::black));
    desktop.change({});
    EXPECT_EQ(QApplication::palette(), builtInPalette(ColorScheme::Light));
}

TEST_F(AppearanceFollowerTest, PaletteOfADesktopIsLeftToQt) {
    const QPalette given(Qt::darkGreen);
    QApplication::setPalette(given);
    const AppearanceFollower follower(desktop, PaletteFrom::Desktop, FontFrom::Desktop);
    desktop.change({.scheme = Scheme::Dark, .wantsMoreContrast = true});
    EXPECT_EQ(background(), given.color(QPalette::Window));
}

TEST_F(AppearanceFollowerTest, FontOfTheDesktopIsTakenWhereQtKnowsNone) {
    const auto before = QApplication::font();
    {
        const AppearanceFollower follower(desktop, PaletteFrom::BuiltIn, FontFrom::BuiltIn);
        desktop.change({.font = DesktopAppearance::Font{u"Noto Sans Mono"_s, 15}});
        EXPECT_EQ(QApplication::font().family(), u"Noto Sans Mono"_s);
        EXPECT_EQ(QApplication::font().pointSizeF(), 15);
        desktop.change({});
        EXPECT_EQ(QApplication::font(), before);
    }
    const AppearanceFollower follower(desktop, PaletteFrom::BuiltIn, FontFrom::Desktop);
    desktop.change({.font = DesktopAppearance::Font{u"Noto Sans Mono"_s, 15}});
    EXPECT_EQ(QApplication::font(), before);
}

TEST_F(AppearanceFollowerTest, MotionStopsAndComesBackWhileTheProgramRuns) {
    QApplication::setStyle(u"fusion"_s);
    const int usual = animationDuration();
    ASSERT_GT(usual, 0);
    const AppearanceFollower follower(desktop, PaletteFrom::Desktop, FontFrom::Desktop);
    EXPECT_EQ(animationDuration(), usual);
    desktop.change({.wantsLessMotion = true});
    EXPECT_EQ(animationDuration(), 0);
    desktop.change({});
    EXPECT_EQ(animationDuration(), usual);
}

TEST_F(AppearanceFollowerTest, StyleThatTheDesktopReplacesIsNoLongerUsed) {
    const AppearanceFollower follower(desktop, PaletteFrom::BuiltIn, FontFrom::Desktop);
    QApplication::setStyle(u"windows"_s);
    desktop.change({.scheme = Scheme::Dark, .wantsLessMotion = true});
    EXPECT_EQ(background(), QColor(0x1d1e21));
}

TEST_F(AppearanceFollowerTest, NothingIsFollowedAfterDestruction) {
    { const AppearanceFollower follower(desktop, PaletteFrom::BuiltIn, FontFrom::Desktop); }
    desktop.change({.scheme = Scheme::Dark});
    EXPECT_EQ(background(), QColor(0xf6f6f8));
}

} // namespace
} // namespace quorvane
