// SPDX-License-Identifier: MIT
#include <gallery/Gallery.h>
#include <gallery/PopoversBoard.h>
#include <gallery/PreferencesBoard.h>
#include <gallery/StatesBoard.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

QString folder() {
    const auto path = qEnvironmentVariable("QUORVANE_GALLERY_FOLDER", u"gallery"_s);
    QDir().mkpath(path);
    return path;
}

QImage picture(QWidget& widget, double scale) {
    QImage image(widget.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image);
    return image;
}

QFont bodyFont(int pixels) {
    QFont font(u"Inter"_s);
    font.setPixelSize(pixels);
    return font;
}

QString nameOf(ColorScheme scheme) {
    return scheme == ColorScheme::Light ? u"light"_s : u"dark"_s;
}

/// Shown, so that layouts and list views are where a user sees them.
template <typename Board>
void writePictures(const QString& name, ColorScheme scheme) {
    QWidget window;
    Board board(scheme, &window);
    window.resize(board.size());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const double scale : {1.0, 1.25, 2.0}) {
        const auto image = picture(board, scale);
        EXPECT_TRUE(
            image.save(u"%1/%2-%3@%4x.png"_s.arg(folder(), name, nameOf(scheme)).arg(scale)));
        // A board that shows nothing has one colour.
        EXPECT_NE(image.pixel(image.rect().center()), image.pixel(0, 0));
    }
}

class GalleryOfScheme : public testing::TestWithParam<ColorScheme> {};

TEST_P(GalleryOfScheme, StatesAreWrittenAtEveryScale) {
    QApplication::setFont(bodyFont(13));
    writePictures<StatesBoard>(u"states"_s, GetParam());
}

TEST_P(GalleryOfScheme, StatesAreWrittenInSmallAndLargeBodyFonts) {
    for (const int pixels : {9, 16}) {
        QApplication::setFont(bodyFont(pixels));
        writePictures<StatesBoard>(u"states-body-%1"_s.arg(pixels), GetParam());
    }
    QApplication::setFont(bodyFont(13));
}

TEST_P(GalleryOfScheme, PopoversAreWrittenAtEveryScale) {
    QApplication::setFont(bodyFont(13));
    writePictures<PopoversBoard>(u"popovers"_s, GetParam());
}

/// In an active window of its own, so that one text field has the focus.
QImage preferencesPicture(ColorScheme scheme, double scale) {
    QWidget window;
    PreferencesBoard board(scheme, &window);
    window.resize(board.size());
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    return picture(board, scale);
}

/// Light above dark, in a body font of that size.
void writePreferences(int pixels, double scale, const QString& name) {
    QApplication::setFont(bodyFont(pixels));
    const auto light = preferencesPicture(ColorScheme::Light, scale);
    const auto dark = preferencesPicture(ColorScheme::Dark, scale);
    QImage both(light.width(), light.height() + dark.height(), QImage::Format_RGB32);
    QPainter painter(&both);
    painter.drawImage(QRect(QPoint(), light.size()), light);
    painter.drawImage(QRect(QPoint(0, light.height()), dark.size()), dark);
    painter.end();
    EXPECT_TRUE(both.save(u"%1/%2.png"_s.arg(folder(), name)));
    EXPECT_NE(light.pixel(light.rect().center()), light.pixel(0, 0));
    EXPECT_NE(light.pixel(0, 0), dark.pixel(0, 0));
    QApplication::setFont(bodyFont(13));
}

TEST(GalleryOfPreferences, IsWrittenLightAboveDark) {
    writePreferences(13, 2, u"preferences"_s);
    writePreferences(13, 1, u"preferences@1x"_s);
}

TEST(GalleryOfPreferences, IsWrittenInSmallAndLargeBodyFonts) {
    writePreferences(9, 1, u"preferences-body-9"_s);
    writePreferences(16, 1, u"preferences-body-16"_s);
}

TEST(GalleryWindow, OpensAndClosesWithAllBoards) {
    Gallery gallery;
    gallery.show();
    gallery.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&gallery));
    EXPECT_FALSE(gallery.grab().isNull());
    gallery.close();
}

INSTANTIATE_TEST_SUITE_P(
    Schemes, GalleryOfScheme, testing::Values(ColorScheme::Light, ColorScheme::Dark));

} // namespace
} // namespace quorvane
