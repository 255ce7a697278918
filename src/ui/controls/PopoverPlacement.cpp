// SPDX-License-Identifier: MIT
#include <controls/PopoverPlacement.h>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int anchorGap = 6;
constexpr int screenMargin = 8;

/// `start` moved so that `length` from there lies within `first` to `last`, all inclusive.
int shifted(int start, int length, int first, int last) {
    return std::max(std::min(start, last - length + 1), first);
}

} // namespace

QRect popoverPlacement(
    const QRect& anchor, QSize size, const QRect& available, PopoverAlignment alignment) {
    const auto room = available.adjusted(screenMargin, screenMargin, -screenMargin, -screenMargin);
    const int below = anchor.bottom() + 1 + anchorGap;
    const int above = anchor.top() - anchorGap - size.height();
    const bool fitsBelow = below + size.height() - 1 <= room.bottom();
    const int top = fitsBelow || above < room.top() ? below : above;
    const int left = alignment == PopoverAlignment::LeftEdges ? anchor.left()
                                                              : anchor.right() + 1 - size.width();
    return {
        QPoint(
            shifted(left, size.width(), room.left(), room.right()),
            shifted(top, size.height(), room.top(), room.bottom())),
        size};
}

} // namespace quorvane
