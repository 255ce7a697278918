// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ActionButton.h>
#include <foundation/DeadlineSet.h>
#include <foundation/MainQueue.h>

namespace quorvane {

/// "Copy", and "Copied" for a while after confirm().
class CopyButton final : public ActionButton {
    Q_OBJECT

public:
    static constexpr Seconds confirmation{1.5};

    CopyButton(MainQueue& queue, QWidget* parent);

    [[nodiscard]] bool copyConfirmed() const { return m_copyConfirmed; }

    /// Each call ends the confirmation `confirmation` later, also one that a later call began.
    void confirm();

protected:
    [[nodiscard]] std::optional<QColor> tint(const Theme& theme) const override;

private:
    void setCopyConfirmed(bool confirmed);

    MainQueue& m_queue;
    DeadlineSet m_resets;
    bool m_copyConfirmed = false;
};

} // namespace quorvane
