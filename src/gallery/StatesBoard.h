// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <controls/Theme.h>
#include <entry/EntryDependencies.h>

#include <QWidget>

#include <functional>

namespace quorvane {

/// Every control at rest, hovered, pressed and with the keyboard's focus, in one colour scheme: a
/// row each, a column a state.
class StatesBoard final : public QWidget {
    Q_OBJECT

public:
    enum class State { Rest, Hover, Press, Focus };

    explicit StatesBoard(ColorScheme scheme, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Makes the control for a cell; null leaves the cell empty.
    using Maker = std::function<QWidget*(State)>;

    void addChips();
    void addChoices();
    void addBoxes();
    void addButtons();
    void addKeyCaps();
    void addRow(const QString& name, const Maker& make);
    void addControl(QWidget* control, int column, State state);
    [[nodiscard]] int rowCenter() const;

    Binding<Instant> m_day;
    EntryDependencies m_dependencies;
    int m_rows = 0;
};

} // namespace quorvane
