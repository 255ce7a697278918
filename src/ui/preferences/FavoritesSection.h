// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"

#include <controls/PasteReader.h>
#include <picker/FoundZones.h>
#include <picker/SearchPreparation.h>
#include <time/Clock.h>
#include <time/ZoneDatabase.h>
#include <timezones/ZoneSearch.h>

namespace quorvane {

class DateTimeModel;
class FavoriteListModel;
class NothingFound;
class SearchField;
class StarredFilter;
class ZoneList;

/// The zones that are offered with one click: a searchable list of all, in which one stars them.
class FavoritesSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// What is referred to must outlive the section.
    FavoritesSection(
        DateTimeModel& model,
        const ZoneDatabase& zones,
        const Clock& clock,
        MainQueue& queue,
        PasteReader pasteReader,
        QWidget* parent);

    [[nodiscard]] SearchField& field() const { return *m_field; }

    /// Shows which zones are favourites now, with the list as it was scrolled.
    void refresh();

private:
    [[nodiscard]] QString searchText() const;
    [[nodiscard]] bool showStarredOnly() const;

    /// Old names as the listed zones that they lead to.
    [[nodiscard]] QStringList favorites() const;

    /// What the list shows: the catalogue in its order, by filter and search text.
    [[nodiscard]] std::vector<TimeZone> filtered() const;

    /// Stars the zone as the last of the favourites, or removes it from them.
    void toggleFavorite(const TimeZone& zone, const QString& name);

    void layOut();
    void search();
    void tellWhatIsFound();
    void showFiltered();

    DateTimeModel& m_model;
    const ZoneDatabase& m_zones;
    const Clock& m_clock;
    ZoneSearch m_search;
    SearchField* m_field;
    StarredFilter* m_filter;
    FavoriteListModel* m_rows;
    ZoneList* m_list;
    NothingFound* m_nothing;
    FoundZones m_found;
    SearchPreparation m_preparation;
};

} // namespace quorvane
