// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <QObject>

namespace quorvane {

/// The main queue on Qt's event loop. Destroying it drops what is still pending; handles of dropped
/// tasks may outlive it.
class QtMainQueue final : public MainQueue {
public:
    /// May be called from any thread.
    void async(Task task) override;

    /// A negative delay counts as none.
    [[nodiscard]] Deadline after(Seconds delay, Task task) override;

private:
    QObject m_context;
};

} // namespace quorvane
