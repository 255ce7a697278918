// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QLocale>
#include <QRegularExpression>
#include <QStyle>
#include <QTimeZone>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

// The build starts this program in the session of a user who has everything otherwise.

TEST(TestSessionTest, OnlyTheFontsOfTheTestsAreThere) {
    // Qt lists a family's weights, and the names that stand for any family, as families too.
    const QRegularExpression known(
        u"^(DejaVu Sans|Droid Sans Fallback|Inter|Inter .*|Loma|Noto Sans Mono|Monospace|"
        u"Sans Serif|Serif)$"_s);
    const auto families = QFontDatabase::families();
    for (const auto& family : {u"DejaVu Sans"_s, u"Inter"_s, u"Loma"_s, u"Noto Sans Mono"_s})
        EXPECT_TRUE(families.contains(family)) << family.toStdString();
    for (const auto& family : families)
        EXPECT_TRUE(known.match(family).hasMatch()) << family.toStdString();
    EXPECT_EQ(QFontInfo(QApplication::font()).family(), u"DejaVu Sans"_s);
    EXPECT_EQ(
        QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).family(),
        u"Noto Sans Mono"_s);
}

TEST(TestSessionTest, LocaleAndZoneAreFixed) {
    EXPECT_EQ(QLocale::system().name(), u"C"_s);
    EXPECT_EQ(QTimeZone::systemTimeZoneId(), "UTC");
}

TEST(TestSessionTest, NothingOfTheDesktopShowsThrough) {
    EXPECT_EQ(QGuiApplication::platformName(), u"offscreen"_s);
    EXPECT_EQ(QApplication::style()->name(), u"fusion"_s);
    EXPECT_EQ(qApp->devicePixelRatio(), 1);
    EXPECT_FALSE(QIcon::hasThemeIcon(u"edit-copy"_s));
    for (const auto* variable : {"XDG_CURRENT_DESKTOP", "QT_STYLE_OVERRIDE", "WAYLAND_DISPLAY"})
        EXPECT_FALSE(qEnvironmentVariableIsSet(variable)) << variable;
}

TEST(TestSessionTest, FoldersAreThereForTheTestAlone) {
    for (const auto* variable :
         {"HOME",
          "XDG_RUNTIME_DIR",
          "XDG_CONFIG_HOME",
          "XDG_CACHE_HOME",
          "XDG_DATA_HOME",
          "XDG_STATE_HOME",
          "XDG_CONFIG_DIRS",
          "XDG_DATA_DIRS"}) {
        const QFileInfo folder(qEnvironmentVariable(variable));
        EXPECT_TRUE(folder.isDir()) << variable;
        EXPECT_TRUE(folder.path().startsWith(QDir::tempPath())) << variable;
        EXPECT_EQ(folder.permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther), 0)
            << variable;
    }
}

} // namespace
} // namespace quorvane
