// SPDX-License-Identifier: MIT
#pragma once

#include <controls/AnchoredPopover.h>
#include <controls/PressableControl.h>

#include <QPointer>

#include <functional>

namespace quorvane {

/// Opens a popover at a control and closes it again. Each time it opens or closes the control is
/// repainted, and assistive technology told whether it is expanded.
class PopoverOpener final : public QObject {
    Q_OBJECT

public:
    /// Makes what the popover shows: called at each opening, gone when it closes.
    using MakeContent = std::function<QWidget*()>;

    /// `anchor` must outlive it.
    PopoverOpener(PressableControl& anchor, PopoverEffects effects, MakeContent makeContent);

    /// For the popovers that open from now on.
    void setAlignment(PopoverAlignment alignment) { m_alignment = alignment; }

    /// What assistive technology calls the popovers that open from now on.
    void setAccessibleName(const QString& name) { m_name = name; }

    [[nodiscard]] bool isOpen() const { return !m_popover.isNull(); }

    /// Null while it is closed.
    [[nodiscard]] QWidget* popover() const { return m_popover; }

    void open();
    void close();
    void toggle();

private:
    void announceExpansion();

    PressableControl& m_anchor;
    PopoverEffects m_effects;
    MakeContent m_makeContent;
    PopoverAlignment m_alignment = PopoverAlignment::LeftEdges;
    QString m_name;
    QPointer<AnchoredPopover> m_popover;
};

} // namespace quorvane
