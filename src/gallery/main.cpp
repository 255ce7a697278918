// SPDX-License-Identifier: MIT
#include "Gallery.h"
#include "PanelScene.h"

#include <controls/ToolTipStyle.h>
#include <controls/ToolTipWrapping.h>
#include <language/InterfaceLanguage.h>
#include <loop/QtMainQueue.h>

#include <QApplication>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const quorvane::InterfaceLanguage language(quorvane::processEnvironment());
    QApplication::setLayoutDirection(language.direction());
    QApplication::setStyle(new quorvane::ToolTipStyle);
    const quorvane::ToolTipWrapping toolTips;
    quorvane::Gallery gallery;
    gallery.resize(gallery.widget()->size().boundedTo({1760, 900}));
    gallery.show();
    // The panel itself, to be tried in the desktop's own colours, with whatever it opens.
    quorvane::QtMainQueue queue;
    quorvane::PanelScene panel(queue);
    panel.show(gallery.screen()->availableGeometry().topLeft());
    return QApplication::exec();
}
