// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ChoiceWidget.h>
#include <controls/PopoverEffects.h>

#include <functional>

namespace quorvane {

class PopUpButton;

/// Shows the selected title, and a list of all of them in a popover when it is pressed. Choosing
/// one closes the list, also when it is the selected one. The list is no narrower than the control.
class PopUpChoice : public ChoiceWidget {
    Q_OBJECT

public:
    explicit PopUpChoice(PopoverEffects effects, QWidget* parent = nullptr);

    [[nodiscard]] const QStringList& titles() const override { return m_titles; }

    [[nodiscard]] std::optional<int> selectedIndex() const override { return m_selected; }

    using ChoiceWidget::setChoices;
    void setChoices(
        const QStringList& titles, std::optional<int> selected, const QString& unlisted) override;
    void setLabel(const QString& label) override;

    /// Makes the choices those of this moment.
    using Renewal = std::function<void()>;

    /// Called before the list opens and before a key steps through the titles, so that choices that
    /// are dear to make need not be kept up to date while nobody chooses.
    void setRenewal(Renewal renewal) { m_renewal = std::move(renewal); }

    /// What each title comes to, in the order of the titles.
    using Samples = std::function<QStringList()>;

    /// The list shows them beside its titles; they are asked for each time it opens.
    void setSamples(Samples samples) { m_samples = std::move(samples); }

    void open();

    [[nodiscard]] bool isOpen() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user chose a title in the list, after chosen(): not by the arrows on the closed control,
    /// which may be on their way to another title.
    void chosenInList(int index);

private:
    void renew();
    [[nodiscard]] QWidget* makeList();
    void choose(int index);
    [[nodiscard]] bool handleKey(int key, Qt::KeyboardModifiers modifiers);

    PopUpButton* m_button;
    QStringList m_titles;
    std::optional<int> m_selected;
    Renewal m_renewal;
    Samples m_samples;
};

} // namespace quorvane
