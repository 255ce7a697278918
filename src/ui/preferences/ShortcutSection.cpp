// SPDX-License-Identifier: MIT
#include "ShortcutSection.h"

#include <controls/WrappedText.h>
#include <preferences/PreferencesMetrics.h>

#include <QHBoxLayout>

#include <utility>

namespace quorvane {

namespace {

constexpr int labelGap = 12;

} // namespace

ShortcutSection::ShortcutSection(
    Binding<HotKeyCombo> combo, const KeyboardLayout& layout, MainQueue& queue, QWidget* parent)
    : PreferencesSection(tr("Keyboard Shortcut"), parent),
      m_recorder(new ShortcutRecorder(std::move(combo), layout, queue, this)) {
    const auto name = tr("Invoke Quorvane");
    m_recorder->setAccessibleName(name);
    auto* label = new WrappedText(name, TextStyle::Body, WrappedText::Color::Secondary, this);
    auto* row = new QHBoxLayout;
    row->setSpacing(labelGap);
    row->addWidget(label, 0, Qt::AlignVCenter);
    row->addWidget(m_recorder, 1);
    column().addSpacing(preferencesmetrics::rowSpacing);
    column().addLayout(row);
    column().addSpacing(preferencesmetrics::captionSpacing);
    column().addWidget(new WrappedText(
        tr("Requires at least one modifier key (⌃ ⌥ ⇧ ⌘)."),
        TextStyle::Caption,
        WrappedText::Color::Secondary));
    addWarning();
}

void ShortcutSection::setActivity(ShortcutRecorder::Activity activity) {
    m_recorder->setActivity(activity);
    const auto warning = ShortcutRecorder::warningOf(activity);
    m_warning->setText(warning);
    m_warningRow->setVisible(!warning.isEmpty());
}

void ShortcutSection::addWarning() {
    m_warningRow = new QWidget(this);
    m_warning = new WrappedText({}, TextStyle::Caption, WrappedText::Color::Primary, m_warningRow);
    auto* row = new QVBoxLayout(m_warningRow);
    row->setContentsMargins(0, preferencesmetrics::captionSpacing, 0, 0);
    row->addWidget(m_warning);
    m_warningRow->hide();
    column().addWidget(m_warningRow);
}

} // namespace quorvane
