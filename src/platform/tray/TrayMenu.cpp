// SPDX-License-Identifier: MIT
#include "TrayMenu.h"

#include <QMenu>

#include <algorithm>

namespace quorvane {

namespace {

QString withoutMnemonics(QString title) {
    return title.replace(u'&', QStringLiteral("&&"));
}

} // namespace

std::unique_ptr<QMenu> makeTrayMenu(const StatusMenu& entries) {
    auto menu = std::make_unique<QMenu>();
    for (const auto& entry : entries) {
        if (entry.isSeparator()) {
            menu->addSeparator();
            continue;
        }
        auto* action = menu->addAction(withoutMnemonics(entry.title));
        action->setShortcut(entry.keys);
        QObject::connect(action, &QAction::triggered, action, entry.run);
    }
    return menu;
}

QPoint trayMenuPlace(const QRect& icon, const QSize& menu, const QRect& available) {
    const int below = icon.bottom() + 1;
    const bool fitsBelow = below + menu.height() <= available.bottom() + 1;
    const int rightmost = available.right() + 1 - menu.width();
    return {
        std::max(std::min(icon.left(), rightmost), available.left()),
        fitsBelow ? below : icon.top() - menu.height()};
}

} // namespace quorvane
