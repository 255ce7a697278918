// SPDX-License-Identifier: MIT
#include "ShortcutLine.h"

#include "CodeText.h"
#include "LabelledRow.h"

#include <controls/Announcement.h>
#include <controls/MacPopUpButton.h>
#include <controls/PushButton.h>
#include <controls/WrappedText.h>
#include <preferences/PreferencesMetrics.h>

#include <QCoreApplication>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString titleOf(BindingSyntax syntax) {
    switch (syntax) {
    case BindingSyntax::Sway:
        return u"sway"_s;
    case BindingSyntax::Hyprland:
        return u"Hyprland"_s;
    case BindingSyntax::River:
        return u"river"_s;
    case BindingSyntax::I3:
        return u"i3"_s;
    case BindingSyntax::Niri:
        return u"niri"_s;
    case BindingSyntax::Command:
        break;
    }
    return QCoreApplication::translate("quorvane::ShortcutLine", "Another desktop");
}

} // namespace

ShortcutLine::ShortcutLine(
    std::function<HotKeyCombo()> combo,
    const KeyboardLayout& layout,
    BindingSyntax syntax,
    const PopoverEffects& effects,
    Copy copy,
    QWidget* parent)
    : QWidget(parent),
      m_combo(std::move(combo)),
      m_layout(layout),
      m_syntax(syntax),
      m_copy(std::move(copy)),
      m_syntaxes(new MacPopUpButton(effects, this)),
      m_advice(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Secondary, this)),
      m_line(new CodeText(this)),
      m_copyButton(new PushButton(tr("Copy"), this)),
      m_outcome(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Secondary, this)),
      m_choice(
          *m_syntaxes,
          {bindingSyntaxes.begin(), bindingSyntaxes.end()},
          titleOf,
          {[this] { return m_syntax; },
           [this](BindingSyntax chosen) {
               choose(chosen);
           }}) {
    const auto question = tr("Window manager");
    auto* label = new WrappedText(question, TextStyle::Body, WrappedText::Color::Secondary, this);
    m_syntaxes->setLabel(question);
    label->setBuddy(m_syntaxes);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, preferencesmetrics::rowSpacing, 0, 0);
    column->setSpacing(preferencesmetrics::rowSpacing);
    column->addLayout(new LabelledRow(label, m_syntaxes));
    column->addWidget(m_advice);
    column->addWidget(m_line);
    column->addLayout(new LabelledRow(m_outcome, m_copyButton));
    connect(m_copyButton, &PushButton::clicked, this, &ShortcutLine::copy);
    refresh();
}

void ShortcutLine::refresh() {
    const auto shown = line();
    if (m_line->text() != shown || m_advice->text() != advice())
        m_outcome->setText({});
    m_advice->setText(advice());
    m_line->setText(shown);
    m_line->setVisible(!shown.isEmpty());
    m_copyButton->setVisible(!shown.isEmpty());
    if (m_copyButton->accessibleDescription() != shown)
        m_copyButton->setAccessibleDescription(shown);
}

QWidget* ShortcutLine::offer() const {
    return m_syntaxes->focusProxy();
}

QString ShortcutLine::line() const {
    return bindingLine(m_syntax, m_combo(), m_layout);
}

QString ShortcutLine::advice() const {
    if (line().isEmpty())
        return tr("This configuration has no name for that key: record another shortcut.");
    if (m_syntax == BindingSyntax::Command)
        return tr("In the keyboard settings of your desktop, have the shortcut run this command:");
    return tr("Add this line to its configuration:");
}

void ShortcutLine::choose(BindingSyntax syntax) {
    m_syntax = syntax;
    refresh();
}

void ShortcutLine::copy() {
    m_outcome->setText(m_copy(line()) ? tr("Copied") : tr("Could not copy"));
    announce(*m_outcome, m_outcome->text());
}

} // namespace quorvane
