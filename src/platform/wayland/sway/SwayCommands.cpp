// SPDX-License-Identifier: MIT
#include <QRegularExpression>

#include <wayland_sway/SwayCommands.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString textOf(const SwayCriteria& window) {
    auto title = QRegularExpression::escape(window.title);
    title.replace(u'"', u"\\\""_s);
    return u"[pid=%1 title=\"^%2$\"]"_s.arg(window.pid).arg(title);
}

QString moveTo(const QPoint& place) {
    return u"move absolute position %1 %2"_s.arg(place.x()).arg(place.y());
}

} // namespace

QString swayRuleToFloat(const SwayCriteria& window) {
    return u"for_window %1 floating enable"_s.arg(textOf(window));
}

QString swayRuleToStick(const SwayCriteria& window) {
    return u"for_window %1 sticky enable"_s.arg(textOf(window));
}

QString swayRuleToMove(const SwayCriteria& window, const QPoint& place) {
    return u"for_window %1 %2"_s.arg(textOf(window), moveTo(place));
}

QString swayMove(const SwayCriteria& window, const QPoint& place) {
    return u"%1 %2"_s.arg(textOf(window), moveTo(place));
}

QString swayFocus(const SwayCriteria& window) {
    return u"%1 focus"_s.arg(textOf(window));
}

} // namespace quorvane
