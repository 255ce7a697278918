// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <controls/PasteReader.h>
#include <picker/FoundZones.h>
#include <picker/SearchPreparation.h>
#include <picker/ZoneListModel.h>
#include <time/Clock.h>
#include <timezones/ZoneSearch.h>

#include <QWidget>

namespace quorvane {

class NothingFound;
class SearchField;
class ZoneList;

/// Chooses time zones: the favourites and the whole catalogue, or what a search finds. What one
/// types always searches, wherever the focus is; arrows move, Return toggles.
class TimeZonePickerView final : public QWidget {
    Q_OBJECT

public:
    /// What is referred to must outlive the view.
    struct Dependencies {
        const ZoneDatabase& zones;
        const Clock& clock;
        UserLocale locale;
        MainQueue& mainQueue;
        PasteReader pasteReader = {};
    };

    /// Identifiers of favourites that name no zone are left out.
    TimeZonePickerView(
        Binding<std::vector<TimeZone>> selectedTimeZones,
        const QStringList& favoriteIdentifiers,
        const Dependencies& dependencies,
        QWidget* parent = nullptr);

    /// The catalogue, or what the search text finds in it.
    [[nodiscard]] std::vector<TimeZone> filtered() const;

    /// Adds the zone to the selection, or removes it; the last one stays.
    void toggleTimeZone(const TimeZone& zone);

Q_SIGNALS:
    /// The user has finished.
    void done();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    void search();
    void tellWhatIsFound();
    void choose(const QModelIndex& index);
    [[nodiscard]] std::vector<ZoneListModel::Section> sections() const;
    [[nodiscard]] bool isSelected(const TimeZone& zone) const;

    Binding<std::vector<TimeZone>> m_selection;
    const Clock& m_clock;
    std::vector<TimeZone> m_favorites;
    ZoneSearch m_search;
    SearchField* m_field;
    ZoneListModel* m_model;
    ZoneList* m_list;
    NothingFound* m_nothing;
    FoundZones m_found;
    SearchPreparation m_preparation;
};

} // namespace quorvane
