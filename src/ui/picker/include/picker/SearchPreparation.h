// SPDX-License-Identifier: MIT
#pragma once

#include <loop/SlicedWork.h>

#include <QObject>

#include <optional>

class QWidget;

namespace quorvane {

class ZoneSearch;

/// Has a search do ahead what its first query needs, so that the first letter is answered as fast
/// as the others: between the first paint of the list and what the user does next.
class SearchPreparation final : public QObject {
    Q_OBJECT

public:
    /// All must outlive this. `list` is what is painted.
    SearchPreparation(ZoneSearch& search, MainQueue& queue, QWidget& list);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ZoneSearch& m_search;
    MainQueue& m_queue;
    std::optional<SlicedWork> m_work; ///< from the first paint on
};

} // namespace quorvane
