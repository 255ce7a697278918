// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;

namespace quorvane {

/// Sees every key press of this program's windows before they do, for as long as it lives.
class LocalKeyMonitor final : public QObject {
    Q_OBJECT

public:
    enum class Verdict { Pass, Swallow };

    /// Gets what was pressed (see EntryKeys.h for its meaning), with whatever modifiers.
    using Handler = std::function<Verdict(const QKeyEvent& event)>;

    explicit LocalKeyMonitor(Handler handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Handler m_handler;
};

} // namespace quorvane
