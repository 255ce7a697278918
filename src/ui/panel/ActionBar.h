// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <QWidget>

namespace quorvane {

class ActionButton;
class CopyButton;
class DimmingOverlay;

/// The two ways to deliver the output, side by side.
class ActionBar final : public QWidget {
    Q_OBJECT

public:
    ActionBar(MainQueue& queue, QWidget* parent);

    /// Whether there is anything to deliver; while there is not, the bar is dimmed.
    void setAvailable(bool available);

    /// The application that Insert types into, which its tooltip names; empty where nobody can
    /// tell.
    void setInsertTarget(const QString& name);

    [[nodiscard]] CopyButton& copyButton() { return *m_copy; }

    [[nodiscard]] ActionButton& insertButton() { return *m_insert; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CopyButton* m_copy;
    ActionButton* m_insert;
    DimmingOverlay* m_overlay;
};

} // namespace quorvane
