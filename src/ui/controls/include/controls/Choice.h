// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <controls/ChoiceWidget.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

namespace quorvane {

/// Binds a control to a selection among items of a type; the selection is the caller's own.
template <typename Item>
class Choice {
public:
    using Title = std::function<QString(const Item&)>;

    /// `widget` must outlive the choice's last refresh; what the user chooses goes to the binding
    /// for as long as both live.
    Choice(ChoiceWidget& widget, std::vector<Item> items, Title title, Binding<Item> binding)
        : m_widget(widget),
          m_items(std::move(items)),
          m_title(std::move(title)),
          m_binding(std::move(binding)) {
        m_connection = QObject::connect(
            &widget, &ChoiceWidget::chosen, &widget, [this](int index) { choose(index); });
        refresh();
    }

    ~Choice() { QObject::disconnect(m_connection); }

    Choice(const Choice&) = delete;
    Choice& operator=(const Choice&) = delete;

    /// Where the selection is none of the items, `standIn` is marked among them in its place.
    void setItems(std::vector<Item> items, std::optional<Item> standIn = {}) {
        m_items = std::move(items);
        m_standIn = std::move(standIn);
        refresh();
    }

    /// Shows titles and selection as they are now. Of equal items the first is the selected one;
    /// the title of a selection that is none of the items shows as well.
    void refresh() {
        QStringList titles;
        for (const auto& item : m_items)
            titles.append(m_title(item));
        const auto selection = m_binding.get();
        if (const auto index = indexOf(selection))
            m_widget.setChoices(titles, index);
        else
            m_widget.setChoices(
                titles, m_standIn ? indexOf(*m_standIn) : std::nullopt, m_title(selection));
    }

private:
    [[nodiscard]] std::optional<int> indexOf(const Item& item) const {
        const auto found = std::ranges::find(m_items, item);
        return found == m_items.end() ? std::nullopt
                                      : std::optional(static_cast<int>(found - m_items.begin()));
    }

    void choose(int index) {
        if (index >= 0 && static_cast<std::size_t>(index) < m_items.size())
            m_binding.set(m_items[static_cast<std::size_t>(index)]);
        refresh();
    }

    ChoiceWidget& m_widget;
    std::vector<Item> m_items;
    std::optional<Item> m_standIn;
    Title m_title;
    Binding<Item> m_binding;
    QMetaObject::Connection m_connection;
};

} // namespace quorvane
