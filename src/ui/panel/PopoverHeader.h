// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Command.h>
#include <controls/PopoverEffects.h>
#include <hotkey/HotKeyCombo.h>
#include <model/PresentationMode.h>

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QSpacerItem;

namespace quorvane {

class IconButton;
class KeyCapRow;

/// The panel's title row: the program, its shortcut, and what concerns the panel as a whole.
class PopoverHeader final : public QWidget {
    Q_OBJECT

public:
    struct Callbacks {
        std::function<void()> togglePresentationMode;
        std::function<void()> close;
        std::vector<Command> menu;
    };

    PopoverHeader(Callbacks callbacks, const PopoverEffects& effects, QWidget* parent);

    /// The shortcut that shows and hides this.
    void setShortcut(const HotKeyCombo& shortcut, const KeyboardLayout& layout);

    /// The mode that the switch leads away from.
    void setPresentationMode(PresentationMode mode);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut(const std::vector<QWidget*>& buttons);

    void followFont();

    QLabel* m_title;
    QSpacerItem* m_symbolRoom; ///< owned by the row
    KeyCapRow* m_caps;
    IconButton* m_presentation;
};

} // namespace quorvane
