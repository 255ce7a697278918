// SPDX-License-Identifier: MIT
#include <ui/OutputPreview.h>
#include <ui/PreviewSection.h>
#include <ui/SectionLabel.h>

#include <QVBoxLayout>

namespace quorvane {

PreviewSection::PreviewSection(MainQueue& queue, QWidget* parent)
    : Section(tr("Preview"), Symbol::EyeSquare, parent),
      m_preview(new OutputPreview(queue, this)) {
    label().setBuddy(m_preview);
    body().addWidget(m_preview);
}

void PreviewSection::setOutput(const QString& output) {
    m_preview->setOutput(output);
}

} // namespace quorvane
