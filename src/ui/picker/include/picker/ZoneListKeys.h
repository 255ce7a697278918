// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace quorvane {

class SearchField;
class ZoneList;

/// Lets a search field and its list share the keyboard, whichever of them has the focus: arrows and
/// pages move the list's current row, Return chooses it, text goes to the field.
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
