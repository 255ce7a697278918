// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <cstdint>
#include <functional>

class QKeyEvent;

namespace quorvane {

/// Sees every key press of this program's windows before they do, for as long as it lives.
class LocalKeyMonitor final : public QObject {
    Q_OBJECT

public:
    enum class Verdict { Pass, Swallow };

    /// Gets the key code of the position that was pressed (see KeyCodes.h), with whatever
    /// modifiers.
    using Handler = std::function<Verdict(std::uint32_t keyCode)>;

    explicit LocalKeyMonitor(Handler handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Handler m_handler;
};

} // namespace quorvane
