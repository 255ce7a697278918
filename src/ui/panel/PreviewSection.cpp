// SPDX-License-Identifier: MIT
#include "PreviewSection.h"

#include "SectionLabel.h"

#include <controls/WrappedText.h>
#include <panel/OutputPreview.h>

#include <QVBoxLayout>

namespace quorvane {

PreviewSection::PreviewSection(MainQueue& queue, QWidget* parent)
    : Section(tr("Preview"), Symbol::EyeSquare, parent),
      m_preview(new OutputPreview(queue, this)),
      m_notice(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Secondary, this)) {
    label().setBuddy(m_preview);
    body().addWidget(m_preview, 1);
    body().addWidget(m_notice);
    m_notice->hide();
}

void PreviewSection::setOutput(const QString& output) {
    m_preview->setOutput(output);
}

void PreviewSection::setNotice(const QString& text) {
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}

} // namespace quorvane
