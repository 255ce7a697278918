// SPDX-License-Identifier: MIT
#pragma once

#include "Section.h"

#include <loop/MainQueue.h>

namespace quorvane {

class OutputPreview;
class WrappedText;

/// The output as it will be delivered.
class PreviewSection final : public Section {
    Q_OBJECT

public:
    /// The queue must outlive the section.
    PreviewSection(MainQueue& queue, QWidget* parent);

    void setOutput(const QString& output);

    /// A caption below the output; empty for none.
    void setNotice(const QString& text);

private:
    OutputPreview* m_preview;
    WrappedText* m_notice;
};

} // namespace quorvane
