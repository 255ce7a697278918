// SPDX-License-Identifier: MIT
#include "ChoiceMenu.h"
#include "PopUpButton.h"

#include <controls/ChipSurface.h>
#include <controls/PopUpChoice.h>

#include <QHBoxLayout>
#include <QKeyEvent>

namespace quorvane {

PopUpChoice::PopUpChoice(PopoverEffects effects, QWidget* parent)
    : ChoiceWidget(parent),
      m_effects(std::move(effects)),
      m_button(new PopUpButton(this)) {
    setFixedHeight(ChipSurface::height);
    setFocusProxy(m_button);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_button);
    m_button->installEventFilter(this);
    connect(m_button, &PopUpButton::clicked, this, &PopUpChoice::toggle);
}

void PopUpChoice::setChoices(const QStringList& titles, std::optional<int> selected) {
    // A list that is open shows other titles than one would choose from.
    if (m_popover && titles != m_titles)
        m_popover->close();
    m_titles = titles;
    const bool isOneOfThem = selected && *selected >= 0 && *selected < titles.size();
    m_selected = isOneOfThem ? selected : std::nullopt;
    m_button->setTitle(isOneOfThem ? titles[*selected] : QString(), titles);
}

void PopUpChoice::setLabel(const QString& label) {
    m_button->setAccessibleName(label);
}

void PopUpChoice::toggle() {
    if (m_popover)
        m_popover->close();
    else
        open();
}

void PopUpChoice::open() {
    auto* menu = new ChoiceMenu(m_titles, m_selected);
    m_popover = new AnchoredPopover(m_button, menu, m_effects);
    connect(menu, &ChoiceMenu::chosen, this, [this](int index) {
        m_popover->close();
        choose(index);
    });
    connect(m_popover, &AnchoredPopover::closed, this, [this] {
        m_popover = nullptr;
        m_button->setOpened(nullptr);
    });
    m_button->setOpened(m_popover);
    m_popover->open();
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
    if (!isArrow || m_titles.isEmpty())
        return false;
    const int last = static_cast<int>(m_titles.size()) - 1;
    const int step = key == Qt::Key_Down ? 1 : -1;
    choose(std::clamp(m_selected.value_or(step > 0 ? -1 : last + 1) + step, 0, last));
    return true;
}

} // namespace quorvane
