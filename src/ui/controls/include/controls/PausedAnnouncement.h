// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <QString>

class QWidget;

namespace quorvane {

/// Announces what changes often, such as with each key that is typed: only what has stood for a
/// while, and only while its widget shows.
class PausedAnnouncement {
public:
    static constexpr Seconds pause{1.0};

    /// Both must outlive this.
    PausedAnnouncement(MainQueue& queue, QWidget& speaker);

    /// Announces the text after the pause, in place of what is still waiting.
    void announceSoon(const QString& text);

    /// Announces nothing of what is still waiting.
    void drop();

private:
    MainQueue& m_queue;
    QWidget& m_speaker;
    Deadline m_pause;
};

} // namespace quorvane
