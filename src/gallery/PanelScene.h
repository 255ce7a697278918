// SPDX-License-Identifier: MIT
#pragma once

#include "Samples.h"

#include <panel/PopoverView.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FakePasteboard.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

namespace quorvane {

/// The real panel at the sample moment, a window by itself, in the application's colours, font and
/// direction. What it copies stays in the scene.
class PanelScene {
public:
    using Preparation = std::function<void(DateTimeModel&)>;

    /// What `prepare` makes of the model is what the panel opens with.
    explicit PanelScene(
        MainQueue& queue,
        const Preparation& prepare = {},
        const UserLocale& locale = sample::locale());

    [[nodiscard]] PopoverView& view() { return m_view; }

    /// What the panel copies to.
    [[nodiscard]] const FakePasteboard& pasteboard() const { return m_pasteboard; }

    /// Shows the panel with its upper left corner there, as high as its content asks for.
    void show(QPoint corner);

private:
    MemoryDefaults m_defaults;
    FakeKeyboardLayout m_keyboard = sample::keyboard();
    VirtualMainQueue m_fakesQueue; ///< for the times in the log
    CallLog m_log{m_fakesQueue};
    FakePasteboard m_pasteboard;
    DateTimeModel m_model;
    PopoverView m_view;
};

} // namespace quorvane
