// SPDX-License-Identifier: MIT
#include <controls/Announcement.h>
#include <controls/PausedAnnouncement.h>

#include <QWidget>

namespace quorvane {

PausedAnnouncement::PausedAnnouncement(MainQueue& queue, QWidget& speaker)
    : m_queue(queue),
      m_speaker(speaker) {
}

void PausedAnnouncement::announceSoon(const QString& text) {
    m_pause = m_queue.after(pause, [this, text] {
        if (m_speaker.isVisible())
            announce(m_speaker, text);
    });
}

void PausedAnnouncement::drop() {
    m_pause = {};
}

} // namespace quorvane
