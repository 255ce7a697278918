// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverAnchor.h"

#include <delivery/TextInserter.h>
#include <hotkey/HotKeyMonitor.h>
#include <model/DateTimeModel.h>
#include <platform/PlatformServices.h>
#include <timezones/ZoneWarmUp.h>

#include <QObject>
#include <QPointer>

#include <loop/DeadlineSet.h>
#include <loop/MainQueue.h>
#include <memory>
#include <optional>
#include <panel/PopoverView.h>
#include <settings/DefaultsStore.h>
#include <settings/WindowFrameStore.h>
#include <time/Clock.h>
#include <time/CurrentZone.h>
#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

namespace quorvane {

class MainMenu;
class Panel;
class PanelFrame;
class PreferencesView;
class PreferencesWindow;
class StatusPopover;

/// The shell of the program: owns the one model and everything that shows it, and carries each
/// request from the shortcut to the text in the other application.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    /// The world around the program; everything outlives the delegate.
    struct Environment {
        Clock& clock;
        DefaultsStore& defaults;
        WindowFrameStore& windowFrames;
        CurrentZone& currentZone;
        const ZoneDatabase& zones;
        UserLocale locale;
        MainQueue& mainQueue;
        PlatformServices& platform;
    };

    /// The running delegate, for code that nobody can hand one to; null before start-up.
    [[nodiscard]] static QPointer<AppDelegate>&
    _sharedDelegate(); // NOLINT(readability-identifier-naming)

    explicit AppDelegate(Environment environment);
    ~AppDelegate() override;

    /// Start-up, once the main loop runs: shows the interface and arms the shortcut.
    void applicationDidFinishLaunching();

    /// Shows the interface, or hides it; what the shortcut does.
    void togglePresentation();

    /// Shows the interface, also when it is shown already: the user opened the program again.
    void surfaceMainUIForReopen();

    /// Hides the interface and types the output into the application that was in front before.
    void performInsert();

    /// Puts the output on the pasteboard.
    void performCopy();

    void showPreferences();

    /// Shows where an update would come from.
    void checkForUpdates();

    /// Does what the desktop calls by name: "toggle", "insert", "copy", "preferences", "quit".
    /// An unknown name does nothing.
    void performAction(const QString& name);

    /// Ends the process, with the pasteboard restored and left in good hands.
    void terminate();

    [[nodiscard]] DateTimeModel& model() { return m_model; }

    [[nodiscard]] const HotKeyMonitor* hotKeyMonitor() const { return m_hotKeyMonitor.get(); }

    /// The mode actually used: a popover needs a status item to hang from.
    [[nodiscard]] PresentationMode effectivePresentationMode() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The end begins; the process lives until the pasteboard is in good hands.
    void willTerminate();

private:
    // Start-up
    void applyActivationPolicy(bool showInDock);
    void startHotKeyMonitor(HotKeyCombo combo);
    void observeModel();
    void observeDesktop();
    template <typename Value>
    [[nodiscard]] auto deferred(void (AppDelegate::*reaction)(Value));

    // The icon in the menu bar
    void makeStatusItem();
    void statusBarButtonClicked(StatusItem::Click click);
    void showContextMenu();
    [[nodiscard]] StatusMenu contextMenu();
    void applyShowInMenuBar(bool visible);
    void applyIconImage();

    // Presentation
    [[nodiscard]] bool isPanelVisible() const;
    [[nodiscard]] bool isPopoverShown() const;
    void present();
    void hideInterface();
    void handlePresentationModeChange(PresentationMode mode);
    void rememberFrontmostApp();
    [[nodiscard]] std::unique_ptr<PopoverView> makeContentView();
    void prepareAfterFirstPaint();

    // The panel
    void setupPanel();
    void showPanel();
    void orderOutPanel();
    void discardPanel();
    void activeSpaceDidChange();

    // The popover
    void setupPopover();
    void showPopover();
    void closePopover();
    void holdOffReopening();

    // Menus, preferences, the Dock
    void setupMainMenu();
    void setupPreferences();
    [[nodiscard]] bool arePreferencesVisible() const;
    void applyHotKey(HotKeyCombo combo);
    void applyShowInDock(bool visible);
    void activateApplication();
    void refreshKeyLabels();

    void activatePreviousApplication();

    Environment m_environment;
    DateTimeModel m_model;
    std::unique_ptr<MainMenu> m_mainMenu;
    std::unique_ptr<StatusItem> m_statusItem;
    PopoverAnchor m_popoverAnchor;
    std::unique_ptr<Panel> m_panel;
    std::unique_ptr<PanelFrame> m_panelFrame; ///< there as long as the panel is
    std::unique_ptr<StatusPopover> m_popover;
    std::optional<Deadline> m_reopeningHeldOff; ///< a press on the icon has just closed the popover
    std::shared_ptr<HotKeyMonitor> m_hotKeyMonitor;
    QPointer<PreferencesView> m_preferencesView;
    std::unique_ptr<PreferencesWindow> m_preferencesWindow;
    std::optional<RunningApplication> m_previousFrontmostApp;
    std::unique_ptr<ZoneWarmUp> m_zoneWarmUp; ///< under way since the first paint
    TextInserter m_inserter;
    DeadlineSet m_insertSteps;
    bool m_terminating = false;
};

} // namespace quorvane
