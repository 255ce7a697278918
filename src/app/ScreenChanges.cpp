// SPDX-License-Identifier: MIT
#include "ScreenChanges.h"

#include <QGuiApplication>
#include <QScreen>

namespace quorvane {

ScreenChanges::ScreenChanges() {
    for (const auto* screen : QGuiApplication::screens())
        follow(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](const QScreen* screen) {
        follow(screen);
        Q_EMIT changed();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenChanges::changed);
}

void ScreenChanges::follow(const QScreen* screen) {
    connect(screen, &QScreen::availableGeometryChanged, this, &ScreenChanges::changed);
}

} // namespace quorvane
