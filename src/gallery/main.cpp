// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gallery/Gallery.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    quorvane::Gallery gallery;
    gallery.resize(gallery.widget()->size().boundedTo({1760, 900}));
    gallery.show();
    return QApplication::exec();
}
