// SPDX-License-Identifier: MIT
#pragma once

#include "Samples.h"

#include <panel/PopoverView.h>
#include <platform/PlatformServices.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/MemoryDefaults.h>

namespace quorvane {

/// The real panel at the sample moment, a window by itself, in the application's colours, font and
/// direction. Its services do nothing.
class PanelScene {
public:
    using Preparation = std::function<void(DateTimeModel&)>;

    /// What `prepare` makes of the model is what the panel opens with.
    explicit PanelScene(
        MainQueue& queue,
        const Preparation& prepare = {},
        const UserLocale& locale = sample::locale());

    [[nodiscard]] PopoverView& view() { return m_view; }

    /// Shows the panel with its upper left corner there, as high as its content asks for.
    void show(QPoint corner);

private:
    MemoryDefaults m_defaults;
    FakeKeyboardLayout m_keyboard = sample::keyboard();
    PlatformServices m_services;
    DateTimeModel m_model;
    PopoverView m_view;
};

} // namespace quorvane
