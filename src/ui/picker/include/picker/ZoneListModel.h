// SPDX-License-Identifier: MIT
#pragma once

#include <picker/TimeZoneRow.h>
#include <time/Clock.h>

#include <QAbstractListModel>

#include <functional>
#include <variant>
#include <vector>

namespace quorvane {

/// Sections of zones as rows of a list. Rows that are heads cannot be chosen.
class ZoneListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        RegionRole = Qt::UserRole,
        AbbreviationRole, ///< empty where it would say no more than the offset
        OffsetRole,
        ReasonRole, ///< why a search found the row; empty where the row shows it
        IsHeadRole,
    };

    struct Section {
        QString head; ///< empty for none
        std::vector<TimeZone> zones;
    };

    using IsSelected = std::function<bool(const TimeZone&)>;
    using Reason = std::function<QString(const TimeZone&)>;

    /// `clock` must outlive the model; texts are those of the moment in which they are asked for.
    ZoneListModel(
        const Clock& clock, UserLocale locale, IsSelected isSelected, QObject* parent = nullptr);

    void setSections(std::vector<Section> sections);

    /// Asked for each row that is seen.
    void setReason(Reason reason) { m_reason = std::move(reason); }

    /// Null for a head, and outside the list.
    [[nodiscard]] const TimeZone* zoneAt(const QModelIndex& index) const;

    /// Which zones are selected has changed; the rows themselves have not.
    void selectionChanged();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const final;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    /// "for Boston"; empty for a row without a reason.
    [[nodiscard]] QString reasonText(const TimeZone& zone) const;

    /// What the row of a zone shows now.
    [[nodiscard]] virtual QVariant zoneData(const TimeZone& zone, int role) const;

    [[nodiscard]] TimeZoneRow rowOf(const TimeZone& zone) const {
        return {zone, m_clock.now(), m_names};
    }

private:
    using Item = std::variant<QString, TimeZone>;

    const Clock& m_clock;
    ShortZoneNames m_names;
    IsSelected m_isSelected;
    Reason m_reason;
    std::vector<Item> m_items;
};

} // namespace quorvane
