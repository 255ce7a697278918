// SPDX-License-Identifier: MIT
#include <controls/Announcement.h>
#include <controls/Announcer.h>

namespace quorvane {

void announce(QWidget& speaker, const QString& text) {
    if (!text.isEmpty())
        Announcer::of(speaker).say(text);
}

} // namespace quorvane
