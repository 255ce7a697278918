// SPDX-License-Identifier: MIT
#include "ChoiceRow.h"
#include "PopUpButton.h"
#include "RowMenu.h"

#include <controls/ChipSurface.h>
#include <controls/PopUpChoice.h>

#include <QHBoxLayout>
#include <QKeyEvent>

#include <algorithm>

namespace quorvane {

namespace {

std::vector<MenuRow*>
makeRows(const QStringList& titles, const QStringList& samples, std::optional<int> selected) {
    std::vector<MenuRow*> rows;
    rows.reserve(static_cast<std::size_t>(titles.size()));
    for (int index = 0; index < titles.size(); ++index) {
        auto* row = new ChoiceRow(titles[index], index == selected, nullptr);
        row->setSample(samples.value(index));
        rows.push_back(row);
    }
    return rows;
}

} // namespace

PopUpChoice::PopUpChoice(PopoverEffects effects, QWidget* parent)
    : ChoiceWidget(parent),
      m_button(new PopUpButton(
          std::move(effects), [this] { return makeList(); }, this)) {
    setFixedHeight(ChipSurface::height);
    setFocusProxy(m_button);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_button);
    m_button->installEventFilter(this);
}

void PopUpChoice::setChoices(
    const QStringList& titles, std::optional<int> selected, const QString& unlisted) {
    // A list that is open shows other titles than one would choose from.
    if (titles != m_titles)
        m_button->list().close();
    m_titles = titles;
    const bool isOneOfThem = selected && *selected >= 0 && *selected < titles.size();
    m_selected = isOneOfThem ? selected : std::nullopt;
    const auto listed = isOneOfThem ? titles[*selected] : QString();
    m_button->setTitle(unlisted.isEmpty() ? listed : unlisted, titles);
}

void PopUpChoice::setLabel(const QString& label) {
    m_button->setAccessibleName(label);
}

void PopUpChoice::open() {
    m_button->list().open();
}

bool PopUpChoice::isOpen() const {
    return m_button->list().isOpen();
}

void PopUpChoice::renew() {
    if (m_renewal)
        m_renewal();
}

QWidget* PopUpChoice::makeList() {
    renew();
    // The keyboard starts at the selected title, without one at the first.
    const auto samples = m_samples ? m_samples() : QStringList();
    auto* menu = new RowMenu(
        QAccessible::List,
        makeRows(m_titles, samples, m_selected),
        m_selected.value_or(0),
        nullptr);
    menu->setMinimumWidth(std::max(menu->minimumWidth(), width()));
    connect(menu, &RowMenu::chosen, this, [this](int index) {
        m_button->list().close();
        choose(index);
        Q_EMIT chosenInList(index);
    });
    return menu;
}

bool PopUpChoice::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* keyEvent = static_cast<QKeyEvent*>(event);
        return handleKey(keyEvent->key(), keyEvent->modifiers());
    }
    return ChoiceWidget::eventFilter(watched, event);
}

void PopUpChoice::choose(int index) {
    setChoices(m_titles, index);
    Q_EMIT chosen(index);
}

bool PopUpChoice::handleKey(int key, Qt::KeyboardModifiers modifiers) {
    const bool isArrow = key == Qt::Key_Up || key == Qt::Key_Down;
    if (key == Qt::Key_F4 || (isArrow && modifiers.testFlag(Qt::AltModifier))) {
        open();
        return true;
    }
    if (!isArrow)
        return false;
    renew();
    if (m_titles.isEmpty())
        return false;
    const int last = static_cast<int>(m_titles.size()) - 1;
    const int step = key == Qt::Key_Down ? 1 : -1;
    choose(std::clamp(m_selected.value_or(step > 0 ? -1 : last + 1) + step, 0, last));
    return true;
}

} // namespace quorvane
