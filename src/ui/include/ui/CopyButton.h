// SPDX-License-Identifier: MIT
#pragma once

#include <foundation/DeadlineSet.h>
#include <foundation/MainQueue.h>

#include <QPushButton>

namespace quorvane {

/// "Copy", and "Copied" for a while after confirm().
class CopyButton final : public QPushButton {
    Q_OBJECT

public:
    static constexpr Seconds confirmation{1.5};

    CopyButton(MainQueue& queue, QWidget* parent);

    [[nodiscard]] bool copyConfirmed() const { return m_copyConfirmed; }

    /// Each call ends the confirmation `confirmation` later, also one that a later call began.
    void confirm();

private:
    void setCopyConfirmed(bool confirmed);

    MainQueue& m_queue;
    DeadlineSet m_resets;
    bool m_copyConfirmed = false;
};

} // namespace quorvane
