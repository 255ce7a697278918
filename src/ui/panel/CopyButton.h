// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ActionButton.h>
#include <loop/DeadlineSet.h>
#include <loop/MainQueue.h>

#include <QVariantAnimation>

namespace quorvane {

/// "Copy"; after a press, what became of it for a while.
class CopyButton final : public ActionButton {
    Q_OBJECT

public:
    static constexpr Seconds confirmation{1.5};

    CopyButton(MainQueue& queue, QWidget* parent);

    /// Says "Copied". Each call ends what is said `confirmation` later, also what a later call
    /// began.
    void confirm();

    /// Says that nothing was copied, for the same time.
    void refuse();

protected:
    void paintFace(QPainter& painter, const Theme& theme) override;

private:
    enum class State { Ready, Confirmed, Refused };

    void sayForAWhile(State state);
    void setState(State state);
    [[nodiscard]] static QString textOf(State state);
    [[nodiscard]] static Face faceOf(State state, const Theme& theme);

    MainQueue& m_queue;
    DeadlineSet m_resets;
    QVariantAnimation m_change; ///< from one face to the other
    State m_state = State::Ready;
    State m_stateBefore = State::Ready;
};

} // namespace quorvane
