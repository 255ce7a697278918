// SPDX-License-Identifier: MIT
#include <picker/SearchPreparation.h>
#include <timezones/ZoneSearch.h>

#include <QEvent>
#include <QWidget>

namespace quorvane {

SearchPreparation::SearchPreparation(ZoneSearch& search, MainQueue& queue, QWidget& list)
    : m_search(search),
      m_queue(queue) {
    list.installEventFilter(this);
}

bool SearchPreparation::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        m_work.emplace(m_queue, [this] { return m_search.prepareNext(); });
    }
    return false;
}

} // namespace quorvane
