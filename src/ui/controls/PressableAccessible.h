// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace quorvane {

class PressableControl;

/// A pressable control as assistive technology sees it. Qt's own class for buttons knows only Qt's
/// own buttons.
class PressableAccessible final : public QAccessibleWidget {
public:
    explicit PressableAccessible(PressableControl& control);

    /// Makes Qt use this class; any number of calls.
    static void install();

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override;

private:
    [[nodiscard]] QString pressName() const;
    /// Of what the control has opened; null while there is nothing.
    [[nodiscard]] QAccessibleInterface* surface() const;

    PressableControl& m_control;
};

} // namespace quorvane
