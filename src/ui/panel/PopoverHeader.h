// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Command.h>
#include <controls/PopoverEffects.h>
#include <model/PresentationMode.h>

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;

namespace quorvane {

class IconButton;

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

    /// One key cap per label; `names`, of the same count, are what screen readers say.
    void setKeys(const QStringList& labels, const QStringList& names);

    /// The mode that the switch leads away from.
    void setPresentationMode(PresentationMode mode);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut(const std::vector<QWidget*>& buttons);

    QHBoxLayout* m_caps;
    IconButton* m_presentation;
    QStringList m_keys;
    QStringList m_keyNames;
};

} // namespace quorvane
