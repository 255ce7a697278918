// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QKeyEvent;

namespace quorvane {

class ZoneChip;

/// Makes the chips of a section one Tab stop. Arrows, Home and End move between them, in the
/// direction that one sees; up and down go to the line above and below.
class ZoneChipFocus final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The chips in their order. The stop stays at its chip, or at the place of one that has gone.
    void setChips(const std::vector<ZoneChip*>& chips);

    /// The chip that Tab leads to: the one that had the focus last, at first the first one. Null
    /// without chips.
    [[nodiscard]] ZoneChip* stop() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Line { Above, Below };

    void setStop(ZoneChip* chip);
    [[nodiscard]] ZoneChip* chipAfterKey(const QKeyEvent& event) const;
    /// `step` places on in the order; the first or last one beyond the ends.
    [[nodiscard]] ZoneChip* chipAt(qsizetype step) const;
    /// The nearest one there; the stop itself if there is no such line.
    [[nodiscard]] ZoneChip* nearestIn(Line line) const;

    std::vector<ZoneChip*> m_chips;
    QPointer<ZoneChip> m_stop;
};

} // namespace quorvane
