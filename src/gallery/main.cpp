// SPDX-License-Identifier: MIT
#include <gallery/Gallery.h>

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    quorvane::Gallery gallery;
    gallery.resize(gallery.widget()->size().boundedTo({1760, 900}));
    gallery.show();
    return QApplication::exec();
}
