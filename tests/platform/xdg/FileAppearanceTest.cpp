// SPDX-License-Identifier: MIT
#include <platform_xdg/FileAppearance.h>

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Scheme = DesktopAppearance::Scheme;

const auto darkGtk = QByteArray("[Settings]\ngtk-theme-name=Adwaita-dark\n");
const auto lightGtk = QByteArray("[Settings]\ngtk-theme-name=Adwaita\n");

class FileAppearanceTest : public testing::Test {
protected:
    void write(const QString& name, const QByteArray& content) {
        const auto path = own.filePath(name);
        QDir().mkpath(path.section(u'/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// As most programs do: a new file takes the place of the old one.
    void replace(const QString& name, const QByteArray& content) {
        QSaveFile file(own.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        ASSERT_TRUE(file.commit());
    }

    FileAppearance& follow() {
        m_appearance = std::make_unique<FileAppearance>(QStringList{own.path(), others.path()});
        m_appearance->read();
        return *m_appearance;
    }

    [[nodiscard]] DesktopAppearance appearance() const {
        return FileAppearance({own.path(), others.path()}).current();
    }

    QTemporaryDir own;
    QTemporaryDir others;

private:
    std::unique_ptr<FileAppearance> m_appearance;
};

TEST_F(FileAppearanceTest, WithoutFilesNothingIsKnown) {
    EXPECT_EQ(appearance(), DesktopAppearance());
}

TEST_F(FileAppearanceTest, GtkSettingsAreKnownFromTheBeginning) {
    write(
        u"gtk-3.0/settings.ini"_s,
        "# written by a tool\n[Settings]\n gtk-theme-name = Greybird-dark\n"
        "gtk-font-name=Sans 12\ngtk-enable-animations=0\n");
    const DesktopAppearance wanted{
        .scheme = Scheme::Dark,
        .font = DesktopAppearance::Font{u"Sans"_s, 12},
        .wantsLessMotion = true};
    EXPECT_EQ(appearance(), wanted);
}

TEST_F(FileAppearanceTest, WishForDarkThemesIsReadFromGtk4Too) {
    write(u"gtk-3.0/settings.ini"_s, lightGtk);
    write(u"gtk-4.0/settings.ini"_s, "[Settings]\ngtk-application-prefer-dark-theme=true\n");
    EXPECT_EQ(appearance().scheme, Scheme::Dark);
}

TEST_F(FileAppearanceTest, ColoursOfKdeTellDarkFromLight) {
    const QByteArray dark("[Colors:Window]\nBackgroundNormal=49,54,59\n"
                          "[General]\nfont=Noto Sans,11,-1,5,50,0,0,0,0,0\nAccentColor=255,0,51\n"
                          "[KDE]\nAnimationDurationFactor=0\n");
    write(u"kdeglobals"_s, dark);
    const auto read = appearance();
    EXPECT_EQ(read.scheme, Scheme::Dark);
    EXPECT_EQ(read.font, (DesktopAppearance::Font{u"Noto Sans"_s, 11}));
    ASSERT_TRUE(read.accent);
    EXPECT_NEAR(read.accent->blue, 0.2, 1e-6);
    EXPECT_TRUE(read.wantsLessMotion);
    write(u"kdeglobals"_s, "[Colors:Window]\nBackgroundNormal=239,240,241\n");
    EXPECT_EQ(appearance().scheme, Scheme::Light);
    write(u"kdeglobals"_s, "[General]\nColorScheme=BreezeDark\n");
    EXPECT_EQ(appearance().scheme, Scheme::Dark);
}

TEST_F(FileAppearanceTest, GtkComesBeforeKde) {
    write(u"kdeglobals"_s, "[General]\nColorScheme=BreezeDark\n");
    write(u"gtk-3.0/settings.ini"_s, lightGtk);
    EXPECT_EQ(appearance().scheme, Scheme::Light);
}

TEST_F(FileAppearanceTest, NonsenseSaysNothing) {
    write(
        u"kdeglobals"_s,
        "[Colors:Window]\nBackgroundNormal=999,-1,x\n[General]\nfont=,x\nAccentColor=1,2\n");
    write(u"gtk-3.0/settings.ini"_s, QByteArray("\0\xff[=\n]=[\n=\n[Settings\n", 20));
    EXPECT_EQ(appearance(), DesktopAppearance());
    QDir().mkpath(own.filePath(u"gtk-4.0/settings.ini"_s));
    EXPECT_EQ(appearance(), DesktopAppearance());
}

TEST_F(FileAppearanceTest, ChangesAreFollowed) {
    write(u"gtk-3.0/settings.ini"_s, lightGtk);
    auto& followed = follow();
    int changes = 0;
    followed.onChanged([&] { ++changes; });
    replace(u"gtk-3.0/settings.ini"_s, darkGtk);
    EXPECT_TRUE(QTest::qWaitFor([&] { return followed.current().scheme == Scheme::Dark; }));
    // A file that took another's place is followed like that one.
    write(u"gtk-3.0/settings.ini"_s, lightGtk);
    EXPECT_TRUE(QTest::qWaitFor([&] { return followed.current().scheme == Scheme::Light; }));
    EXPECT_GE(changes, 2);
}

TEST_F(FileAppearanceTest, FilesThatComeLaterAreFollowed) {
    const auto& followed = follow();
    write(u"gtk-3.0/settings.ini"_s, darkGtk);
    EXPECT_TRUE(QTest::qWaitFor([&] { return followed.current().scheme == Scheme::Dark; }));
}

} // namespace
} // namespace quorvane
