// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ActionButton.h>
#include <loop/DeadlineSet.h>
#include <loop/MainQueue.h>

#include <QVariantAnimation>

namespace quorvane {

/// "Copy", and "Copied" for a while after confirm().
class CopyButton final : public ActionButton {
    Q_OBJECT

public:
    static constexpr Seconds confirmation{1.5};

    CopyButton(MainQueue& queue, QWidget* parent);

    /// Each call ends the confirmation `confirmation` later, also one that a later call began.
    void confirm();

protected:
    void paintFace(QPainter& painter, const Theme& theme) override;

private:
    void setCopyConfirmed(bool confirmed);
    [[nodiscard]] Face faceWhile(bool confirmed, const Theme& theme) const;

    MainQueue& m_queue;
    DeadlineSet m_resets;
    QVariantAnimation m_change; ///< from one face to the other
    bool m_copyConfirmed = false;
};

} // namespace quorvane
