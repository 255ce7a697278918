// SPDX-License-Identifier: MIT
#include "TypingSection.h"

#include "LabelledRow.h"

#include <controls/Announcement.h>
#include <controls/PushButton.h>
#include <controls/WrappedText.h>
#include <preferences/PreferencesMetrics.h>

#include <QCoreApplication>
#include <QVBoxLayout>

namespace quorvane {

namespace {

constexpr auto context = "quorvane::TypingSection";

const char* textOf(TypingRight right) {
    switch (right) {
    case TypingRight::Granted:
        return QT_TRANSLATE_NOOP("quorvane::TypingSection", "Allowed");
    case TypingRight::NotAsked:
        return QT_TRANSLATE_NOOP(
            "quorvane::TypingSection", "Not allowed yet; Insert copies instead");
    case TypingRight::Asking:
        return QT_TRANSLATE_NOOP("quorvane::TypingSection", "Waiting for your answer");
    case TypingRight::Refused:
        return QT_TRANSLATE_NOOP("quorvane::TypingSection", "Not allowed; Insert copies instead");
    case TypingRight::Stopped:
        return QT_TRANSLATE_NOOP(
            "quorvane::TypingSection", "Stopped by your desktop; Insert copies instead");
    case TypingRight::Unavailable:
        break;
    }
    return QT_TRANSLATE_NOOP("quorvane::TypingSection", "Not available; Insert copies instead");
}

} // namespace

TypingSection::TypingSection(
    const AccessibilityRight& right, const std::function<void()>& allow, QWidget* parent)
    : PreferencesSection(tr("Insert into Other Apps"), parent),
      m_right(right),
      m_state(new WrappedText({}, TextStyle::Body, WrappedText::Color::Primary, this)),
      m_allow(new PushButton(tr("Allow…"), this)),
      m_caption(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Secondary, this)) {
    column().addSpacing(preferencesmetrics::rowSpacing);
    column().addLayout(new LabelledRow(m_state, m_allow));
    column().addSpacing(preferencesmetrics::captionSpacing);
    column().addWidget(m_caption);
    connect(m_allow, &PushButton::clicked, this, allow);
}

void TypingSection::refresh() {
    const auto right = m_right.typing();
    const bool isGiven = right == TypingRight::Granted;
    say(QCoreApplication::translate(context, textOf(right)));
    m_caption->setText(
        isGiven ? tr("Your desktop may show a mark while Quorvane can type. You can end it there.")
                : tr("Your desktop will ask you to allow remote interaction, and may show a mark "
                     "while Quorvane can type."));
    m_allow->setVisible(!isGiven);
    m_allow->setEnabled(right != TypingRight::Unavailable);
}

QWidget* TypingSection::offer() const {
    return m_allow->isVisibleTo(this) && m_allow->isEnabled() ? m_allow : nullptr;
}

void TypingSection::say(const QString& state) {
    if (m_state->text() == state)
        return;
    m_state->setText(state);
    m_allow->setAccessibleDescription(state);
    if (isVisible())
        announce(*m_state, state);
}

} // namespace quorvane
