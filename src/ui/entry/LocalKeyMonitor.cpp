// SPDX-License-Identifier: MIT
#include "LocalKeyMonitor.h"

#include <platform/KeyCodes.h>

#include <QCoreApplication>
#include <QKeyEvent>

#include <optional>
#include <utility>

namespace quorvane {

namespace {

/// For a key press that came from no keyboard and so has no position.
std::optional<std::uint32_t> keyCodeOfMeaning(int key) {
    switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return keycode::tab;
    case Qt::Key_Left:
        return keycode::leftArrow;
    case Qt::Key_Right:
        return keycode::rightArrow;
    case Qt::Key_Down:
        return keycode::downArrow;
    case Qt::Key_Up:
        return keycode::upArrow;
    default:
        return std::nullopt;
    }
}

std::optional<std::uint32_t> keyCodeOf(const QKeyEvent& event) {
    const auto keyCode = keyCodeFromScanCode(event.nativeScanCode());
    return keyCode ? keyCode : keyCodeOfMeaning(event.key());
}

} // namespace

LocalKeyMonitor::LocalKeyMonitor(Handler handler) : m_handler(std::move(handler)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool LocalKeyMonitor::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto keyCode = keyCodeOf(*static_cast<QKeyEvent*>(event));
    return keyCode && m_handler(*keyCode) == Verdict::Swallow;
}

} // namespace quorvane
