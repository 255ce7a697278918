// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopoverOpener.h>
#include <controls/PressableControl.h>

#include <QStringList>

namespace quorvane {

/// The face of a pop-up: the selected title and a chevron on a chip's surface. A press opens its
/// list, the next one closes it.
class PopUpButton final : public PressableControl {
    Q_OBJECT

public:
    PopUpButton(PopoverEffects effects, PopoverOpener::MakeContent makeList, QWidget* parent);

    [[nodiscard]] PopoverOpener& list() { return m_list; }

    [[nodiscard]] const PopoverOpener& list() const { return m_list; }

    /// Shows a title; the width that it asks for is that of the widest of `titles`. Assistive
    /// technology is told of another title only: a choice is shown anew more often than it changes.
    void setTitle(const QString& title, const QStringList& titles);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ComboBox;
    }

    [[nodiscard]] std::optional<bool> isExpanded() const override { return m_list.isOpen(); }

    [[nodiscard]] QWidget* openedSurface() const override { return m_list.popover(); }

    [[nodiscard]] QString accessibleValue() const override { return text(); }

Q_SIGNALS:
    /// It shows another title than before; assistive technology is told of each.
    void valueChanged(const QString& title);

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

private:
    void announceValue(const QString& title);

    QStringList m_titles;
    PopoverOpener m_list;
};

} // namespace quorvane
