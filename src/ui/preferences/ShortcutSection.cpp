// SPDX-License-Identifier: MIT
#include "ShortcutSection.h"

#include "LabelledRow.h"

#include <controls/WrappedText.h>
#include <preferences/PreferencesMetrics.h>

#include <QVBoxLayout>

#include <utility>

namespace quorvane {

ShortcutSection::ShortcutSection(
    Binding<HotKeyCombo> combo, const KeyboardLayout& layout, MainQueue& queue, QWidget* parent)
    : PreferencesSection(tr("Keyboard Shortcut"), parent),
      m_recorder(new ShortcutRecorder(std::move(combo), layout, queue, this)) {
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
    connect(m_recorder, &ShortcutRecorder::noticeChanged, this, &ShortcutSection::showNotice);
}

void ShortcutSection::setStatus(const ShortcutRecorder::Status& status) {
    m_recorder->setStatus(status);
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
