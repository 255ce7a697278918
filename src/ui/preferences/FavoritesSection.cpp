// SPDX-License-Identifier: MIT
#include "FavoritesSection.h"

#include "FavoriteListModel.h"
#include "FavoriteRowDelegate.h"
#include "StarredFilter.h"

#include <controls/Announcement.h>
#include <controls/SearchField.h>
#include <controls/WrappedText.h>
#include <model/DateTimeModel.h>
#include <picker/NothingFound.h>
#include <picker/ZoneList.h>
#include <picker/ZoneListKeys.h>
#include <preferences/PreferencesMetrics.h>

#include <QGridLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace quorvane {

namespace {

constexpr int captionGap = 2;
constexpr int listGap = 2; ///< the list begins with a padding of its own

} // namespace

FavoritesSection::FavoritesSection(
    DateTimeModel& model,
    const ZoneDatabase& zones,
    const Clock& clock,
    MainQueue& queue,
    PasteReader pasteReader,
    QWidget* parent)
    : PreferencesSection(tr("Favorite Time Zones"), parent),
      m_model(model),
      m_zones(zones),
      m_clock(clock),
      m_search(TimeZoneCatalogue(zones, clock.now()), model.locale()),
      m_field(new SearchField(tr("Search"), std::move(pasteReader), this)),
      m_filter(new StarredFilter(this)),
      m_rows(new FavoriteListModel(
          clock,
          model.locale(),
          [this](const TimeZone& zone) { return favorites().contains(zone.identifier()); },
          this)),
      m_list(new ZoneList(this)),
      m_nothing(new NothingFound(m_list)),
      m_found(queue, *m_list, *m_nothing, model.locale()),
      m_preparation(m_search, queue, *m_list->viewport()) {
    m_field->setTrailingRoom(StarredFilter::room);
    m_list->setItemDelegate(new FavoriteRowDelegate(m_list));
    m_list->setModel(m_rows);
    m_rows->setReason([this](const TimeZone& zone) {
        return m_search.reason(searchText(), m_clock.now(), zone);
    });
    m_list->setAccessibleName(tr("Favorite Time Zones"));
    new ZoneListKeys(*m_field, *m_list);
    layOut();
    connect(m_field, &SearchField::textChanged, this, [this] {
        search();
        tellWhatIsFound();
    });
    connect(m_filter, &StarredFilter::switched, this, &FavoritesSection::search);
    connect(m_list, &ZoneList::chosen, this, [this](const QModelIndex& index) {
        if (const auto* zone = m_rows->zoneAt(index))
            toggleFavorite(*zone, index.data().toString());
    });
    search();
}

QString FavoritesSection::searchText() const {
    return m_field->text();
}

bool FavoritesSection::showStarredOnly() const {
    return m_filter->isOn();
}

QStringList FavoritesSection::favorites() const {
    return m_zones.listedNames(m_model.favoriteTimeZoneIdentifiers());
}

std::vector<TimeZone> FavoritesSection::filtered() const {
    return showStarredOnly() ? m_search.starredResults(searchText(), m_clock.now(), favorites())
                             : m_search.results(searchText(), m_clock.now());
}

void FavoritesSection::toggleFavorite(const TimeZone& zone, const QString& name) {
    auto identifiers = m_model.favoriteTimeZoneIdentifiers();
    const auto before = identifiers.size();
    // One entry only: a list that was edited by hand may hold more. But all old names of the zone,
    // each of which would go on to star it.
    identifiers.removeOne(zone.identifier());
    identifiers.removeIf([&](const QString& each) {
        return each != zone.identifier() && m_zones.listedName(each) == zone.identifier();
    });
    const bool isRemoved = identifiers.size() < before;
    if (!isRemoved)
        identifiers.append(zone.identifier());
    m_model.setFavoriteTimeZoneIdentifiers(identifiers);
    announce(
        *m_list,
        isRemoved ? tr("%1 removed from favorites").arg(name)
                  : tr("%1 added to favorites").arg(name));
}

void FavoritesSection::refresh() {
    if (!showStarredOnly()) {
        m_rows->selectionChanged();
        return;
    }
    const auto current = m_list->currentIndex();
    const auto* currentZone = m_rows->zoneAt(current);
    std::optional<int> row;
    if (currentZone != nullptr) {
        const auto zones = filtered();
        const auto found = std::ranges::find(zones, *currentZone);
        // What is gone leaves its place to the row that follows it.
        row = found != zones.end() ? static_cast<int>(found - zones.begin()) : current.row();
    }
    const int scrolled = m_list->verticalScrollBar()->value();
    showFiltered();
    m_list->goBackTo(scrolled, row);
}

void FavoritesSection::layOut() {
    auto* search = new QGridLayout;
    search->setContentsMargins(0, 0, 0, 0);
    search->addWidget(m_field, 0, 0);
    search->addWidget(m_filter, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    m_filter->raise();
    column().addSpacing(captionGap);
    column().addWidget(new WrappedText(
        tr("Favorites appear as one-click chips in the popover."),
        TextStyle::Caption,
        WrappedText::Color::Secondary));
    column().addSpacing(preferencesmetrics::rowSpacing);
    column().addLayout(search);
    column().addSpacing(listGap);
    // It asks for no more than the least, which leaves it all that there is. The list itself is not
    // asked in a layout whose height goes by its width: without the row's minimum that would be
    // taken from what stands above.
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    auto* rows = new QGridLayout;
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setRowMinimumHeight(0, preferencesmetrics::leastListHeight);
    rows->addWidget(m_list, 0, 0);
    column().addLayout(rows, 1);
}

void FavoritesSection::search() {
    showFiltered();
    m_list->goToTop();
}

void FavoritesSection::tellWhatIsFound() {
    if (normalisedQuery(searchText()).isEmpty())
        m_found.drop();
    else
        m_found.tell();
}

void FavoritesSection::showFiltered() {
    m_rows->setSections({{{}, filtered()}});
    if (m_rows->rowCount() > 0)
        m_nothing->hide();
    else if (normalisedQuery(searchText()).isEmpty())
        m_nothing->showMessage(Symbol::Star, tr("No favorite time zones"));
    else
        m_nothing->showFor(searchText().trimmed());
}

} // namespace quorvane
