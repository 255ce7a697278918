// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QWidget>

namespace quorvane {

/// Gives memory that is free again back to the system each time a window has been hidden. The
/// allocator keeps what lies between pieces that are in use: tens of megabytes after a flood of
/// messages on the bus, for as long as the program runs.
class FreedMemory final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window.
    explicit FreedMemory(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quorvane
