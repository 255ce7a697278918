// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QEventLoop>
#include <QObject>
#include <QWidget>

#include <chrono>

namespace quorvane {

/// Waits, in the event loop, until a widget has been painted.
class PaintWatch final : public QObject {
public:
    using Clock = std::chrono::steady_clock;

    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    /// From `start` to the end of the event-loop iteration that paints the widget, in milliseconds.
    [[nodiscard]] double untilPainted(Clock::time_point start) {
        m_isPainted = false;
        while (!m_isPainted)
            m_loop.processEvents(QEventLoop::WaitForMoreEvents);
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }

    /// Does all that is due.
    void settle() {
        while (m_loop.processEvents(QEventLoop::AllEvents))
            continue;
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop m_loop;
    bool m_isPainted = false;
};

} // namespace quorvane
