// SPDX-License-Identifier: MIT
#include "ShortcutSection.h"

#include "LabelledRow.h"
#include "ListedShortcut.h"
#include "ShortcutLine.h"

#include <controls/WrappedText.h>
#include <preferences/PreferencesMetrics.h>

#include <QVBoxLayout>

#include <utility>

namespace quorvane {

ShortcutSection::ShortcutSection(
    Binding<HotKeyCombo> combo, Dependencies dependencies, QWidget* parent)
    : PreferencesSection(tr("Keyboard Shortcut"), parent),
      m_list(dependencies.list),
      m_recorder(new ShortcutRecorder(combo, dependencies.layout, dependencies.queue, this)),
      m_listed(new ListedShortcut(m_list, combo.get, dependencies.layout, this)),
      m_line(new ShortcutLine(
          combo.get,
          dependencies.layout,
          dependencies.syntax,
          dependencies.popoverEffects,
          std::move(dependencies.copy),
          this)) {
    const auto name = tr("Invoke Quorvane");
    m_recorder->setAccessibleName(name);
    auto* label = new WrappedText(name, TextStyle::Body, WrappedText::Color::Secondary, this);
    column().addSpacing(preferencesmetrics::rowSpacing);
    column().addLayout(new LabelledRow(label, m_recorder));
    column().addSpacing(preferencesmetrics::captionSpacing);
    column().addWidget(new WrappedText(
        tr("Requires at least one modifier key (Ctrl, Alt, Shift, Super)."),
        TextStyle::Caption,
        WrappedText::Color::Secondary));
    addNotice();
    column().addWidget(m_listed);
    column().addWidget(m_line);
    connect(m_recorder, &ShortcutRecorder::noticeChanged, this, &ShortcutSection::showNotice);
    connect(
        m_listed, &ListedShortcut::recordRequested, m_recorder, &ShortcutRecorder::startRecording);
    setStatus({});
}

void ShortcutSection::setStatus(const ShortcutRecorder::Status& status) {
    const bool isNobodys = status.activity == ShortcutRecorder::Activity::Unavailable;
    // An entry is shown as well where the desktop tells us of presses once it has one.
    const bool isListed = !m_list.desktopName().isEmpty() && (isNobodys || m_list.bound());
    // The list says more than that no program can have one.
    m_recorder->setStatus(isNobodys && isListed ? ShortcutRecorder::Status() : status);
    m_listed->setVisible(isListed);
    m_line->setVisible(isNobodys && !isListed);
    m_listed->refresh();
    m_line->refresh();
}

bool ShortcutSection::needsHelp() const {
    return help() != nullptr;
}

QWidget* ShortcutSection::offer() const {
    auto* wanted = help();
    return wanted != nullptr ? wanted : m_recorder;
}

/// What the user has to do about it; null where it works as it is.
QWidget* ShortcutSection::help() const {
    if (m_listed->isVisibleTo(this))
        return m_listed->offer();
    return m_line->isVisibleTo(this) ? m_line->offer() : nullptr;
}

void ShortcutSection::showNotice() {
    const auto notice = m_recorder->notice();
    m_notice->setText(notice);
    m_noticeRow->setVisible(!notice.isEmpty());
}

void ShortcutSection::addNotice() {
    m_noticeRow = new QWidget(this);
    m_notice = new WrappedText({}, TextStyle::Caption, WrappedText::Color::Primary, m_noticeRow);
    auto* row = new QVBoxLayout(m_noticeRow);
    row->setContentsMargins(0, preferencesmetrics::captionSpacing, 0, 0);
    row->addWidget(m_notice);
    column().addWidget(m_noticeRow);
    showNotice();
}

} // namespace quorvane
