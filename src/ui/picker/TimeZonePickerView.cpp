// SPDX-License-Identifier: MIT
#include <controls/Announcement.h>
#include <controls/SearchField.h>
#include <controls/TextButton.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <picker/NothingFound.h>
#include <picker/TimeZonePickerView.h>
#include <picker/ZoneList.h>
#include <picker/ZoneListKeys.h>
#include <timezones/ZoneSelection.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int headHeight = 44;
constexpr int topPadding = 4;
constexpr int sideMargin = 16;
constexpr int doneOverhang = 8; ///< the button's text ends with the column
constexpr int listGap = 8;
constexpr int lineWidth = 1;

QWidget* makeHead(TextButton* done) {
    auto* head = new QWidget;
    head->setFixedHeight(headHeight);
    auto* title = new QLabel(TimeZonePickerView::tr("Time Zones"), head);
    title->setFont(textFont(title->font(), TextStyle::Headline));
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, topPadding, 0, 0);
    row->setSpacing(0);
    row->addSpacing(sideMargin);
    row->addWidget(title);
    row->addStretch();
    row->addWidget(done);
    row->addSpacing(sideMargin - doneOverhang);
    return head;
}

} // namespace

TimeZonePickerView::TimeZonePickerView(
    Binding<std::vector<TimeZone>> selectedTimeZones,
    const QStringList& favoriteIdentifiers,
    const Dependencies& dependencies,
    QWidget* parent)
    : QWidget(parent),
      m_selection(std::move(selectedTimeZones)),
      m_clock(dependencies.clock),
      m_favorites(dependencies.zones.zones(dependencies.zones.listedNames(favoriteIdentifiers))),
      m_search(
          TimeZoneCatalogue(dependencies.zones, dependencies.clock.now()), dependencies.locale),
      m_field(new SearchField(
          tr("Search by name, city, or abbreviation"), dependencies.pasteReader, this)),
      m_model(new ZoneListModel(
          dependencies.clock,
          dependencies.locale,
          [this](const TimeZone& zone) { return isSelected(zone); },
          this)),
      m_list(new ZoneList(this)),
      m_nothing(new NothingFound(m_list)),
      m_found(dependencies.mainQueue, *m_list, *m_nothing, dependencies.locale),
      m_preparation(m_search, dependencies.mainQueue, *m_list->viewport()) {
    setAccessibleName(tr("Time Zones"));
    setFocusProxy(m_field);
    m_list->setModel(m_model);
    m_model->setReason([this](const TimeZone& zone) {
        return m_search.reason(m_field->text(), m_clock.now(), zone);
    });
    layOut();
    new ZoneListKeys(*m_field, *m_list);
    connect(m_field, &SearchField::textChanged, this, [this] {
        search();
        tellWhatIsFound();
    });
    connect(m_list, &ZoneList::chosen, this, &TimeZonePickerView::choose);
    search();
}

std::vector<TimeZone> TimeZonePickerView::filtered() const {
    return m_search.results(m_field->text(), m_clock.now());
}

void TimeZonePickerView::toggleTimeZone(const TimeZone& zone) {
    m_selection.set(toggledSelection(m_selection.get(), zone));
    m_model->selectionChanged();
}

void TimeZonePickerView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRectF line(0, m_list->y() - lineWidth, width(), lineWidth);
    painter.fillRect(line, Theme::of(palette()).divider);
}

void TimeZonePickerView::layOut() {
    auto* done = new TextButton(tr("Done"), this);
    connect(done, &TextButton::clicked, this, &TimeZonePickerView::done);
    auto* search = new QHBoxLayout;
    search->setContentsMargins(sideMargin, 0, sideMargin, listGap + lineWidth);
    search->addWidget(m_field);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeHead(done));
    column->addLayout(search);
    column->addWidget(m_list, 1);
    setTabOrder(m_field, m_list);
    setTabOrder(m_list, done);
}

void TimeZonePickerView::search() {
    m_model->setSections(sections());
    if (m_model->rowCount() == 0)
        m_nothing->showFor(m_field->text().trimmed());
    else
        m_nothing->hide();
    m_list->goToFirst();
}

void TimeZonePickerView::tellWhatIsFound() {
    if (normalisedQuery(m_field->text()).isEmpty())
        m_found.drop();
    else
        m_found.tell();
}

void TimeZonePickerView::choose(const QModelIndex& index) {
    const auto* zone = m_model->zoneAt(index);
    if (zone == nullptr)
        return;
    const bool wasSelected = isSelected(*zone);
    toggleTimeZone(*zone);
    const auto name = index.data().toString();
    if (isSelected(*zone) == wasSelected)
        announce(*m_list, tr("%1 stays, because it is the only time zone").arg(name));
    else
        announce(*m_list, wasSelected ? tr("%1 removed").arg(name) : tr("%1 added").arg(name));
}

std::vector<ZoneListModel::Section> TimeZonePickerView::sections() const {
    auto zones = filtered();
    // Favourites are a section of their own only in the list of everything.
    if (m_favorites.empty() || !normalisedQuery(m_field->text()).isEmpty())
        return {{{}, std::move(zones)}};
    return {{tr("Favorites"), m_favorites}, {tr("All Time Zones"), std::move(zones)}};
}

bool TimeZonePickerView::isSelected(const TimeZone& zone) const {
    return std::ranges::count(m_selection.get(), zone) > 0;
}

} // namespace quorvane
