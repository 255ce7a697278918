// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ChoiceWidget.h>
#include <controls/PopoverEffects.h>

namespace quorvane {

class PopUpButton;

/// Shows the selected title, and a list of all of them in a popover when it is pressed. Choosing
/// one closes the list, also when it is the selected one.
class PopUpChoice : public ChoiceWidget {
    Q_OBJECT

public:
    explicit PopUpChoice(PopoverEffects effects, QWidget* parent = nullptr);

    [[nodiscard]] const QStringList& titles() const override { return m_titles; }

    [[nodiscard]] std::optional<int> selectedIndex() const override { return m_selected; }

    void setChoices(const QStringList& titles, std::optional<int> selected) override;
    void setLabel(const QString& label) override;

    void open();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QWidget* makeList();
    void choose(int index);
    [[nodiscard]] bool handleKey(int key, Qt::KeyboardModifiers modifiers);

    PopUpButton* m_button;
    QStringList m_titles;
    std::optional<int> m_selected;
};

} // namespace quorvane
