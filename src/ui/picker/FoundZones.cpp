// SPDX-License-Identifier: MIT
#include <picker/FoundZones.h>
#include <picker/NothingFound.h>
#include <picker/ZoneList.h>
#include <time/SpanText.h>

#include <QAbstractItemModel>

#include <utility>

namespace quorvane {

FoundZones::FoundZones(
    MainQueue& queue, ZoneList& list, const NothingFound& nothing, UserLocale numbers)
    : m_list(list),
      m_nothing(nothing),
      m_numbers(std::move(numbers)),
      m_announcement(queue, list) {
}

void FoundZones::tell() {
    m_announcement.announceSoon(text());
}

QString FoundZones::text() const {
    const auto& rows = *m_list.model();
    const int count = rows.rowCount();
    if (count == 0)
        return m_nothing.message();
    const auto first = rows.index(0, 0).data().toString();
    if (count == 1)
        return tr("1 time zone: %1").arg(first);
    return tr("%1 time zones, first %2", nullptr, count)
        .arg(wholeNumberText(count, m_numbers), first);
}

} // namespace quorvane
