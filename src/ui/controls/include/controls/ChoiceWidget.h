// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <optional>

namespace quorvane {

/// A control that offers titles, of which at most one is selected. It knows positions only; see
/// Choice.h for items of a type.
class ChoiceWidget : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    [[nodiscard]] virtual const QStringList& titles() const = 0;
    [[nodiscard]] virtual std::optional<int> selectedIndex() const = 0;

    /// Shows these titles, with that one selected; an index outside them selects none. The user's
    /// choice is not announced by this.
    void setChoices(const QStringList& titles, std::optional<int> selected) {
        setChoices(titles, selected, {});
    }

    /// Likewise; what is selected is called `unlisted` and is none of the titles, where that is not
    /// empty. The title at `selected` only stands for it. A control without room for another title
    /// does not show it.
    virtual void
    setChoices(const QStringList& titles, std::optional<int> selected, const QString& unlisted) = 0;

    /// What the choice is about, for assistive technology.
    virtual void setLabel(const QString& label) { setAccessibleName(label); }

Q_SIGNALS:
    /// The user chose a title, perhaps the one that was selected before.
    void chosen(int index);
};

} // namespace quorvane
