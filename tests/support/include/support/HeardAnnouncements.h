// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Announcer.h>

#include <QObject>
#include <QStringList>

#include <utility>

namespace quorvane {

/// Hears what a screen reader is asked to announce of a window while it lives.
class HeardAnnouncements {
public:
    explicit HeardAnnouncements(const QWidget& window) {
        QObject::connect(
            &Announcer::of(window), &Announcer::said, &m_ear, [this](const QString& text) {
                m_texts << text;
            });
    }

    /// What was announced since the last time, in its order.
    [[nodiscard]] QStringList take() { return std::exchange(m_texts, {}); }

private:
    QObject m_ear;
    QStringList m_texts;
};

} // namespace quorvane
