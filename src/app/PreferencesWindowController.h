// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesFrame.h"

#include <controls/InputDevice.h>
#include <model/DateTimeModel.h>
#include <platform/PlatformServices.h>
#include <preferences/PreferencesView.h>
#include <settings/Environment.h>

#include <QPointer>

#include <functional>
#include <memory>

class QWindow;

namespace quorvane {

class PreferencesWindow;

/// Shows the preferences. Their window is made when it is shown first, and kept from then on.
class PreferencesWindowController final {
public:
    /// All must outlive the controller.
    struct Dependencies {
        DateTimeModel& model;
        const ZoneDatabase& zones;
        MainQueue& mainQueue;
        const Clock& clock;
        WindowFrameStore& windowFrames;
        PlatformServices& platform;
        Environment environment;
    };

    struct Callbacks {
        std::function<ShortcutRecorder::Status()> shortcutStatus;
        std::function<void(HotKeyCombo)> onHotKeyChange;
        std::function<void()> onAllowTyping;
        std::function<void(QWidget& window)> attachMainMenu;
    };

    PreferencesWindowController(Dependencies dependencies, Callbacks callbacks);
    ~PreferencesWindowController();

    PreferencesWindowController(const PreferencesWindowController&) = delete;
    PreferencesWindowController& operator=(const PreferencesWindowController&) = delete;

    /// Shows the window and gives it the focus; opened by keyboard, or at a place, it shows where
    /// that is.
    void showWindow(InputDevice device, PreferencesPlace place);

    /// Saves a frame that is due to be saved.
    void saveFrameNow();

    /// Shows the contents anew, for changes that the model does not announce.
    void refreshSoon();

    /// Null while nothing is visible.
    [[nodiscard]] QWindow* visibleWindow() const;

private:
    void setupWindow();
    [[nodiscard]] PreferencesView::Dependencies viewDependencies() const;

    Dependencies m_dependencies;
    Callbacks m_callbacks;
    QPointer<PreferencesView> m_view;
    std::unique_ptr<PreferencesWindow> m_window;
    std::unique_ptr<PreferencesFrame> m_frame; ///< exists as long as the window
};

} // namespace quorvane
