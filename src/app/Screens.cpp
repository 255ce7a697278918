// SPDX-License-Identifier: MIT
#include "Screens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace quorvane::screens {

std::vector<QRect> availableAreas(const QScreen* excluded) {
    std::vector<QRect> areas;
    for (const auto* screen : QGuiApplication::screens()) {
        if (screen != excluded)
            areas.push_back(screen->availableGeometry());
    }
    return areas;
}

const QScreen& mainScreen(const Workspace& workspace) {
    const auto* screen = workspace.focusedScreen();
    if (screen == nullptr)
        screen = QGuiApplication::screenAt(QCursor::pos());
    return screen != nullptr ? *screen : *QGuiApplication::primaryScreen();
}

const QScreen& screenAround(QPoint place, const Workspace& workspace) {
    const auto* screen = QGuiApplication::screenAt(place);
    return screen != nullptr ? *screen : mainScreen(workspace);
}

} // namespace quorvane::screens
