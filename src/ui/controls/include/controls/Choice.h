// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <controls/ChoiceWidget.h>

#include <algorithm>
#include <functional>
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

    void setItems(std::vector<Item> items) {
        m_items = std::move(items);
        refresh();
    }

    /// Shows titles and selection as they are now. Of equal items the first is the selected one.
    void refresh() {
        QStringList titles;
        for (const auto& item : m_items)
            titles.append(m_title(item));
        const auto found = std::ranges::find(m_items, m_binding.get());
        m_widget.setChoices(
            titles,
            found == m_items.end() ? std::nullopt
                                   : std::optional(static_cast<int>(found - m_items.begin())));
    }

private:
    void choose(int index) {
        if (index >= 0 && static_cast<std::size_t>(index) < m_items.size())
            m_binding.set(m_items[static_cast<std::size_t>(index)]);
        refresh();
    }

    ChoiceWidget& m_widget;
    std::vector<Item> m_items;
    Title m_title;
    Binding<Item> m_binding;
    QMetaObject::Connection m_connection;
};

} // namespace quorvane
