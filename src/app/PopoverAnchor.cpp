// SPDX-License-Identifier: MIT
#include "PopoverAnchor.h"

#include "Screens.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace quorvane {

namespace {

// The last click on each screen is needed; few desktops have more than eight screens.
constexpr std::size_t rememberedClicks = 8;

QRect pointRect(QPoint point) {
    return {point, QSize(1, 1)};
}

} // namespace

void PopoverAnchor::noteClick(QPoint pointer) {
    m_clicks.push_back(pointer);
    if (m_clicks.size() > rememberedClicks)
        m_clicks.erase(m_clicks.begin());
    m_isClicked = true;
}

void PopoverAnchor::clickHandled() {
    m_isClicked = false;
}

PopoverAnchor::Place PopoverAnchor::place(const std::optional<QRect>& iconFrame) const {
    if (iconFrame)
        return {
            *iconFrame,
            screens::screenAround(iconFrame->center(), m_workspace).availableGeometry()};
    if (m_isClicked)
        return {
            pointRect(m_clicks.back()),
            screens::screenAround(m_clicks.back(), m_workspace).availableGeometry()};
    const auto& screen = screens::mainScreen(m_workspace);
    const auto available = screen.availableGeometry();
    const auto inCorner = corner(screen.geometry(), available, QGuiApplication::layoutDirection());
    return {pointRect(lastClickOn(screen).value_or(inCorner)), available};
}

QPoint
PopoverAnchor::corner(const QRect& screen, const QRect& available, Qt::LayoutDirection direction) {
    const bool hasLowerBar = screen.bottom() - available.bottom() > available.top() - screen.top();
    const int y = hasLowerBar ? available.bottom() : available.top();
    return {direction == Qt::RightToLeft ? available.left() : available.right(), y};
}

std::optional<QPoint> PopoverAnchor::lastClickOn(const QScreen& screen) const {
    const auto latest = std::find_if(m_clicks.rbegin(), m_clicks.rend(), [&](QPoint click) {
        return screen.geometry().contains(click);
    });
    return latest != m_clicks.rend() ? std::optional(*latest) : std::nullopt;
}

} // namespace quorvane
