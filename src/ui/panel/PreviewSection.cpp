// SPDX-License-Identifier: MIT
#include "PreviewSection.h"

#include "SectionLabel.h"

#include <panel/OutputPreview.h>

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
