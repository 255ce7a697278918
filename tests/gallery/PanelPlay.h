// SPDX-License-Identifier: MIT
#pragma once

#include "BoardSettings.h"
#include "PanelScene.h"
#include "ScenePicture.h"

#include <testing/VirtualMainQueue.h>

namespace quorvane {

class PressableControl;

/// A panel on the screen, and hands that bring it to a state with pointer and keys.
class PanelPlay {
public:
    explicit PanelPlay(const BoardSetting& setting, const PanelScene::Preparation& prepare = {});

    void openStartTime();
    void enterMinute();

    /// Into the field that has the focus.
    void typeTime(const QString& text);

    void openStartDate();
    void typeDate(const QString& text);
    void openEndDate();
    void hoverDay(int day);
    void openPicker();
    void search(const QString& query);
    void hoverZone(int row);
    void openPresets();
    void openMore();
    void hoverRow(int row);
    void hoverPlus();
    void enterPattern();
    void openPatternPage();
    void setHeight(int height);
    void copy();

    [[nodiscard]] PopoverView& view() { return m_scene.view(); }

    /// What the control that was pressed has opened; null before.
    [[nodiscard]] QWidget* surface() const;

    [[nodiscard]] ScenePicture picture();

private:
    void open(PressableControl& control);

    double m_scale;
    VirtualMainQueue m_queue;
    PanelScene m_scene;
    PressableControl* m_opener = nullptr;
};

} // namespace quorvane
