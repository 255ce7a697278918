// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QImage>
#include <gtest/gtest.h>

#include <gallery/StatesBoard.h>

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

TEST(Gallery, BoardsOfStatesAreWrittenAtEveryScale) {
    QApplication::setFont([] {
        QFont font(u"Inter"_s);
        font.setPixelSize(13);
        return font;
    }());
    for (const auto scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        StatesBoard board(scheme);
        board.ensurePolished();
        for (const double scale : {1.0, 1.25, 2.0}) {
            const auto name = scheme == ColorScheme::Light ? u"light"_s : u"dark"_s;
            const auto path = u"%1/states-%2@%3x.png"_s.arg(folder(), name).arg(scale);
            EXPECT_TRUE(picture(board, scale).save(path));
        }
    }
}

} // namespace
} // namespace quorvane
