// SPDX-License-Identifier: MIT
#include <picker/ZoneListModel.h>

namespace quorvane {

namespace {

QVariant headData(const QString& head, int role) {
    switch (role) {
    case Qt::DisplayRole:
        return head;
    case ZoneListModel::IsHeadRole:
        return true;
    default:
        return {};
    }
}

QString nameAndReason(const QString& name, const QString& reason) {
    return reason.isEmpty() ? name : ZoneListModel::tr("%1, %2").arg(name, reason);
}

} // namespace

ZoneListModel::ZoneListModel(
    const Clock& clock, UserLocale locale, IsSelected isSelected, QObject* parent)
    : QAbstractListModel(parent),
      m_clock(clock),
      m_names(std::move(locale)),
      m_isSelected(std::move(isSelected)) {
}

void ZoneListModel::setSections(std::vector<Section> sections) {
    beginResetModel();
    m_items.clear();
    for (auto& section : sections) {
        if (!section.head.isEmpty())
            m_items.emplace_back(std::move(section.head));
        for (auto& zone : section.zones)
            m_items.emplace_back(std::move(zone));
    }
    endResetModel();
}

const TimeZone* ZoneListModel::zoneAt(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < m_items.size() ? std::get_if<TimeZone>(&m_items[row]) : nullptr;
}

void ZoneListModel::selectionChanged() {
    if (!m_items.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

int ZoneListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ZoneListModel::data(const QModelIndex& index, int role) const {
    if (const auto* zone = zoneAt(index))
        return zoneData(*zone, role);
    return index.isValid()
               ? headData(std::get<QString>(m_items[static_cast<std::size_t>(index.row())]), role)
               : QVariant();
}

Qt::ItemFlags ZoneListModel::flags(const QModelIndex& index) const {
    if (zoneAt(index) == nullptr)
        return Qt::NoItemFlags;
    // Checkable for assistive technology. Pressing anywhere in the row is what checks it: see
    // ZoneList; a delegate that would do it as well is refused by setData().
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
           Qt::ItemNeverHasChildren;
}

QString ZoneListModel::reasonText(const TimeZone& zone) const {
    const auto reason = m_reason ? m_reason(zone) : QString();
    //: Why a search found a time zone, after its name: "New York, for Boston"
    return reason.isEmpty() ? QString() : tr("for %1").arg(reason);
}

QVariant ZoneListModel::zoneData(const TimeZone& zone, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return rowOf(zone).place();
    case Qt::AccessibleTextRole:
        return nameAndReason(rowOf(zone).place(), reasonText(zone));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return zone.identifier();
    case Qt::CheckStateRole:
        return m_isSelected(zone) ? Qt::Checked : Qt::Unchecked;
    case RegionRole:
        return rowOf(zone).regionName().value_or(QString());
    case AbbreviationRole:
        return rowOf(zone).abbreviation();
    case OffsetRole:
        return rowOf(zone).offsetString();
    case ReasonRole:
        return reasonText(zone);
    case IsHeadRole:
        return false;
    default:
        return {};
    }
}

} // namespace quorvane
