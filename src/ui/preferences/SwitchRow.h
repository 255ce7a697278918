// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QVBoxLayout;

namespace quorvane {

class ToggleSwitch;
class WrappedText;

/// A setting that is on or off: its label, and the switch level with the label's first line. The
/// label takes the press as well.
class SwitchRow final : public QWidget {
    Q_OBJECT

public:
    /// How far the row extends beyond what it paints, above and below: the switch takes presses on
    /// a height of 24.
    static constexpr int overhang = 3;

    SwitchRow(const QString& label, QWidget* parent);

    void setOn(bool on);

Q_SIGNALS:
    /// The user has switched it.
    void switched(bool on);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void followFont();

    WrappedText* m_label;
    ToggleSwitch* m_switch;
    QVBoxLayout* m_labelPlace;
    QVBoxLayout* m_switchPlace;
};

} // namespace quorvane
