// SPDX-License-Identifier: MIT
#pragma once

#include "InterfaceCallbacks.h"
#include "PanelPresentation.h"
#include "PopoverPresentation.h"

#include <controls/InputDevice.h>
#include <model/DateTimeModel.h>
#include <panel/PanelHint.h>

namespace quorvane {

class PreviousFrontmostApp;
class TrayIcon;

/// Shows the interface in the mode that the model names: as a panel or as a popover, never both.
class Presentation final {
public:
    /// All must outlive the presentation.
    struct Dependencies {
        const DateTimeModel& model;
        const TrayIcon& trayIcon;
        PreviousFrontmostApp& previousFrontmostApp;
        WindowFrameStore& windowFrames;
        MainQueue& mainQueue;
        const Workspace& workspace;
        WindowTraits& windowTraits;
    };

    Presentation(Dependencies dependencies, const InterfaceCallbacks& callbacks);

    /// Hides the interface, or shows it and remembers what was in front. What opens the interface
    /// decides whether one sees at once where the keyboard is.
    void toggle(InputDevice device);

    /// Shows the interface, also when it is shown already, which keeps what is remembered.
    void surface();

    /// Makes the hidden window of the model's mode before anybody waits for it.
    void makeReady();

    /// Shows the interface and remembers nothing. What was hidden shows this moment.
    void present(InputDevice device = InputDevice::Pointer);

    void hide();

    /// The reaction to a click on the tray icon: toggles, unless that click closed the popover.
    void handleIconClick();

    /// The model's mode has changed: discards the window of the other one. What was shown is shown
    /// in the new mode.
    void handlePresentationModeChange(PresentationMode mode);

    /// Shows the contents anew, for changes that the model does not announce.
    void refreshSoon();

    /// Takes the application that a text is to be inserted into at this moment: what the user works
    /// in, also while a panel floats above it.
    void rememberTarget();

    /// Another application may be in front: what is shown names it.
    void frontmostDidChange();

    /// What the user has worked with last in the interface, if it is shown.
    [[nodiscard]] InputDevice lastInput() const;

    /// A caption at the preview; empty for none.
    void setNotice(const QString& text);

    /// What the user has still to set up; empty for nothing to say.
    void setHint(const PanelHint& hint);

    /// The mode actually used: a popover needs a tray icon to be placed at.
    [[nodiscard]] PresentationMode effectivePresentationMode() const;

    [[nodiscard]] bool isShown() const;

    [[nodiscard]] PanelPresentation& panel() { return m_panel; }

    [[nodiscard]] PopoverPresentation& popover() { return m_popover; }

private:
    void appear();
    void showWindow(InputDevice device);
    [[nodiscard]] InterfaceCallbacks preparing(InterfaceCallbacks callbacks);
    void prepare(PopoverView& view) const;
    void prepareViews() const;

    const DateTimeModel& m_model;
    const TrayIcon& m_trayIcon;
    PreviousFrontmostApp& m_previousFrontmostApp;
    std::function<void()> m_onAppearing;
    QString m_notice;
    PanelHint m_hint;
    PanelPresentation m_panel;
    PopoverPresentation m_popover;
};

} // namespace quorvane
