// SPDX-License-Identifier: MIT
#pragma once

#include <controls/RoleWidget.h>
#include <panel/PanelHint.h>

namespace quorvane {

class IconButton;
class TextButton;
class WrappedText;

/// A quiet line below the panel's header that tells the user once about something to set up, and
/// leads there. It shows while it has a text.
class HintLine final : public RoleWidget {
    Q_OBJECT

public:
    explicit HintLine(QWidget* parent);

    void setHint(const PanelHint& hint);

Q_SIGNALS:
    void followed();
    /// The user does not want to see it again.
    void dismissed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    WrappedText* m_text;
    TextButton* m_action;
};

} // namespace quorvane
