// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace quorvane {

class SearchField;
class ZoneList;

/// Makes one instrument of a search field and the list that it searches, wherever the focus is:
/// arrows and pages move the list's current row, Return chooses it, text goes to the field.
class ZoneListKeys final : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the list.
    ZoneListKeys(SearchField& field, ZoneList& list);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ZoneList& m_list;
};

} // namespace quorvane
