// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PausedAnnouncement.h>
#include <time/UserLocale.h>

#include <QCoreApplication>

namespace quorvane {

class NothingFound;
class ZoneList;

/// Tells a screen reader's user what a search for zones has found, when the typing pauses.
class FoundZones {
    Q_DECLARE_TR_FUNCTIONS(FoundZones)

public:
    /// The first three must outlive this.
    FoundZones(MainQueue& queue, ZoneList& list, const NothingFound& nothing, UserLocale numbers);

    /// Tells soon what the list holds now.
    void tell();

    /// Tells nothing of a search before: nothing is searched for.
    void drop() { m_announcement.drop(); }

private:
    [[nodiscard]] QString text() const;

    ZoneList& m_list;
    const NothingFound& m_nothing;
    UserLocale m_numbers;
    PausedAnnouncement m_announcement;
};

} // namespace quorvane
