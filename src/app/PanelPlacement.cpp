// SPDX-License-Identifier: MIT
#include "PanelPlacement.h"

#include <panel/PanelMetrics.h>

#include <QLayout>
#include <QWidget>

#include <algorithm>

namespace quorvane::panelplacement {

namespace {

// A stored frame has some height. No window is as low as this.
constexpr int noHeight = 1;

} // namespace

int fittingHeight(QWidget& content) {
    content.ensurePolished();
    const auto* layout = content.layout();
    return layout != nullptr && layout->hasHeightForWidth()
               ? layout->heightForWidth(panelmetrics::width)
               : content.sizeHint().height();
}

int contentHeight(int fittingHeight) {
    return std::max(fittingHeight, minimumContentHeight);
}

QRect centred(QSize size, const QRect& available) {
    QRect frame(QPoint(), size);
    frame.moveCenter(available.center());
    frame.moveLeft(std::max(frame.left(), available.left()));
    frame.moveTop(std::max(frame.top(), available.top()));
    return frame;
}

QRect stored(QPoint place, std::optional<int> usersHeight) {
    return {place, QSize(panelmetrics::width, usersHeight.value_or(noHeight))};
}

std::optional<int> storedHeight(const QRect& stored) {
    return stored.height() < minimumContentHeight ? std::nullopt : std::optional(stored.height());
}

bool touchesAny(const QRect& frame, const std::vector<QRect>& availableAreas) {
    return std::ranges::any_of(
        availableAreas, [&](const QRect& area) { return area.intersects(frame); });
}

QRect resized(const QRect& frame, int height, const QRect& available) {
    QRect grown(frame.topLeft(), QSize(frame.width(), std::min(height, available.height())));
    const int overhang = grown.bottom() - available.bottom();
    const bool wasInside = frame.bottom() <= available.bottom();
    if (wasInside && overhang > 0)
        grown.moveTop(std::max(available.top(), grown.top() - overhang));
    return grown;
}

QRect resizedInPlace(const QRect& frame, int height, const QRect& available) {
    const int below = available.bottom() + 1 - frame.top();
    const int room = frame.bottom() <= available.bottom() ? below : available.height();
    return {frame.topLeft(), QSize(frame.width(), std::min(height, room))};
}

} // namespace quorvane::panelplacement
