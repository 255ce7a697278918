// SPDX-License-Identifier: MIT
#pragma once

#include "Section.h"

#include <controls/PausedAnnouncement.h>
#include <controls/ScrollingSection.h>

namespace quorvane {

class OutputPreview;
class WrappedText;

/// The output as it will be delivered.
class PreviewSection final : public Section, public ScrollingSection {
    Q_OBJECT

public:
    /// The queue must outlive the section.
    PreviewSection(MainQueue& queue, QWidget* parent);

    /// What has changed is read to a screen reader's user after a pause in the changes.
    void setOutput(const QString& output);

    /// Whether there is an output; while there is none for want of a zone, it asks for one.
    void setAvailable(bool available);

    void holdBack(int height) override;
    [[nodiscard]] int heldBack() const override;
    void setScrollBarShown(bool shown) override;

    /// A caption below the output; empty for none.
    void setNotice(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user wants this part of the output on the clipboard.
    void copyRequested(const QString& text);

private:
    void placePrompt();

    OutputPreview* m_preview;
    WrappedText* m_notice;
    WrappedText* m_prompt; ///< over the preview and its dimming
    QString m_output;
    PausedAnnouncement m_reading;
};

} // namespace quorvane
