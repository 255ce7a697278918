// SPDX-License-Identifier: MIT
#include "ListedShortcut.h"

#include <controls/Announcement.h>
#include <controls/FlowLayout.h>
#include <controls/PushButton.h>
#include <controls/WrappedText.h>
#include <hotkey/ShortcutChord.h>
#include <preferences/PreferencesMetrics.h>
#include <recorder/KeyNames.h>

#include <QVBoxLayout>

#include <utility>

namespace quorvane {

namespace {

/// A screen reader is told of every assignment.
void describe(QWidget& widget, const QString& text) {
    if (widget.accessibleDescription() != text)
        widget.setAccessibleDescription(text);
}

} // namespace

ListedShortcut::ListedShortcut(
    DesktopShortcut& list,
    std::function<HotKeyCombo()> combo,
    const KeyboardLayout& layout,
    QWidget* parent)
    : QWidget(parent),
      m_list(list),
      m_combo(std::move(combo)),
      m_layout(layout),
      m_status(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Primary, this)),
      m_offer(new PushButton({}, this)),
      m_remove(new PushButton(tr("Remove"), this)) {
    auto* buttons = new FlowLayout(preferencesmetrics::rowSpacing);
    buttons->addWidget(m_offer);
    buttons->addWidget(m_remove);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, preferencesmetrics::captionSpacing, 0, 0);
    column->setSpacing(preferencesmetrics::rowSpacing);
    column->addWidget(m_status);
    column->addLayout(buttons);
    connect(m_offer, &PushButton::clicked, this, &ListedShortcut::takeOffer);
    connect(m_remove, &PushButton::clicked, this, [this] { m_list.unbind(); });
}

void ListedShortcut::refresh() {
    const auto now = state();
    m_offer->setLabel(offerText(now));
    show(now != State::Bound, m_list.bound().has_value());
    describe(*m_remove, tr("Takes Quorvane out of the shortcuts of %1").arg(m_list.desktopName()));
    say(statusText(now));
}

/// At least one of them. The keyboard's focus stays with what is left.
void ListedShortcut::show(bool offers, bool removes) {
    if (!offers && m_offer->hasFocus()) {
        m_remove->show();
        m_remove->setFocus(Qt::OtherFocusReason);
    }
    if (!removes && m_remove->hasFocus()) {
        m_offer->show();
        m_offer->setFocus(Qt::OtherFocusReason);
    }
    m_offer->setVisible(offers);
    m_remove->setVisible(removes);
}

QWidget* ListedShortcut::offer() const {
    return state() == State::Bound ? nullptr : m_offer;
}

ListedShortcut::State ListedShortcut::state() const {
    const auto wanted = chordOf(m_combo());
    const auto bound = m_list.bound();
    if (!wanted || !m_list.holder(*wanted).isEmpty())
        return State::Taken;
    if (!bound)
        return State::Absent;
    return bound == wanted ? State::Bound : State::OtherKeys;
}

QString ListedShortcut::statusText(State state) const {
    const auto desktop = m_list.desktopName();
    switch (state) {
    case State::Absent:
        return tr("To use this shortcut, add it to the shortcuts of %1.").arg(desktop);
    case State::Bound:
        return tr("It is in the shortcuts of %1.").arg(desktop);
    case State::OtherKeys:
        return tr("The shortcuts of %1 still have %2 for Quorvane.")
            .arg(desktop, shortcutText(comboOf(*m_list.bound()), m_layout));
    case State::Taken:
        break;
    }
    const auto wanted = chordOf(m_combo());
    return wanted ? tr("In the shortcuts of %1, this one belongs to “%2”.")
                        .arg(desktop, m_list.holder(*wanted))
                  : tr("This keyboard has no such key.");
}

QString ListedShortcut::offerText(State state) const {
    switch (state) {
    case State::Absent:
        return tr("Add to %1 shortcuts").arg(m_list.desktopName());
    case State::OtherKeys:
        return tr("Change in %1 shortcuts").arg(m_list.desktopName());
    case State::Taken:
    case State::Bound:
        break;
    }
    return tr("Record another shortcut");
}

void ListedShortcut::say(const QString& status) {
    if (m_status->text() == status)
        return;
    m_status->setText(status);
    describe(*m_offer, status);
    if (isVisible())
        announce(*m_status, status);
}

void ListedShortcut::takeOffer() {
    if (state() == State::Taken)
        Q_EMIT recordRequested();
    else if (const auto chord = chordOf(m_combo()))
        m_list.bind(*chord);
}

} // namespace quorvane
