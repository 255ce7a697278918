// SPDX-License-Identifier: MIT
#include "ZoneChipFocus.h"

#include <panel/ZoneChip.h>

#include <QKeyEvent>

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace quorvane {

void ZoneChipFocus::setChips(const std::vector<ZoneChip*>& chips) {
    const auto place = std::ranges::find(m_chips, m_stop.data()) - m_chips.begin();
    for (auto* chip : chips)
        chip->installEventFilter(this);
    m_chips = chips;
    if (m_chips.empty()) {
        m_stop = nullptr;
        return;
    }
    const bool stays = m_stop != nullptr && std::ranges::count(m_chips, m_stop.data()) > 0;
    const auto index = m_stop == nullptr ? 0 : std::min(place, std::ssize(m_chips) - 1);
    setStop(stays ? m_stop.data() : m_chips[static_cast<std::size_t>(index)]);
}

ZoneChip* ZoneChipFocus::stop() const {
    return m_stop;
}

bool ZoneChipFocus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        setStop(qobject_cast<ZoneChip*>(watched));
    if (event->type() != QEvent::KeyPress || watched != m_stop)
        return QObject::eventFilter(watched, event);
    auto* next = chipAfterKey(*static_cast<QKeyEvent*>(event));
    if (next == nullptr)
        return false;
    next->setFocus(Qt::TabFocusReason);
    return true;
}

void ZoneChipFocus::setStop(ZoneChip* chip) {
    m_stop = chip;
    for (auto* each : m_chips)
        each->setFocusPolicy(each == chip ? Qt::StrongFocus : Qt::ClickFocus);
}

ZoneChip* ZoneChipFocus::chipAfterKey(const QKeyEvent& event) const {
    if (event.modifiers() & ~Qt::KeypadModifier)
        return nullptr;
    const bool mirrored = m_stop->layoutDirection() == Qt::RightToLeft;
    const auto last = std::ssize(m_chips);
    switch (event.key()) {
    case Qt::Key_Left:
        return chipAt(mirrored ? 1 : -1);
    case Qt::Key_Right:
        return chipAt(mirrored ? -1 : 1);
    case Qt::Key_Home:
        return chipAt(-last);
    case Qt::Key_End:
        return chipAt(last);
    case Qt::Key_Up:
        return nearestIn(Line::Above);
    case Qt::Key_Down:
        return nearestIn(Line::Below);
    default:
        return nullptr;
    }
}

ZoneChip* ZoneChipFocus::chipAt(qsizetype step) const {
    const auto place = std::ranges::find(m_chips, m_stop.data()) - m_chips.begin();
    const auto index = std::clamp<qsizetype>(place + step, 0, std::ssize(m_chips) - 1);
    return m_chips[static_cast<std::size_t>(index)];
}

ZoneChip* ZoneChipFocus::nearestIn(Line line) const {
    const auto distance = [this](const ZoneChip* chip) {
        return std::tuple(
            std::abs(chip->y() - m_stop->y()),
            std::abs(chip->geometry().center().x() - m_stop->geometry().center().x()));
    };
    ZoneChip* nearest = m_stop;
    for (auto* chip : m_chips) {
        const bool isThere =
            line == Line::Above ? chip->y() < m_stop->y() : chip->y() > m_stop->y();
        if (isThere && (nearest == m_stop || distance(chip) < distance(nearest)))
            nearest = chip;
    }
    return nearest;
}

} // namespace quorvane
