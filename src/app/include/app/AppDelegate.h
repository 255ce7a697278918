// SPDX-License-Identifier: MIT
#pragma once

#include <delivery/TextInserter.h>
#include <foundation/Clock.h>
#include <foundation/CurrentZone.h>
#include <foundation/DeadlineSet.h>
#include <foundation/DefaultsStore.h>
#include <foundation/MainQueue.h>
#include <foundation/UserLocale.h>
#include <foundation/WindowFrameStore.h>
#include <foundation/ZoneDatabase.h>
#include <hotkey/HotKeyMonitor.h>
#include <model/DateTimeModel.h>
#include <platform/PlatformServices.h>
#include <timezones/ZoneWarmUp.h>
#include <ui/PopoverView.h>

#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

class QWidget;

namespace quorvane {

class Panel;
class PanelFrame;

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

Q_SIGNALS:
    /// The end begins; the process lives until the pasteboard is in good hands.
    void willTerminate();

private:
    void startHotKeyMonitor(HotKeyCombo combo);
    void applyHotKey(HotKeyCombo combo);
    void applyActivationPolicy(bool showInDock);
    void applyShowInDock(bool visible);
    void activeSpaceDidChange();

    [[nodiscard]] bool isPanelVisible() const;
    [[nodiscard]] std::unique_ptr<PopoverView> makeContentView();
    void present();
    void setupPanel();
    void showPanel();
    void prepareAfterFirstPaint();
    void orderOutPanel();
    void activatePreviousApplication();

    Environment m_environment;
    DateTimeModel m_model;
    std::unique_ptr<Panel> m_panel;
    std::unique_ptr<PanelFrame> m_panelFrame;
    QPointer<PopoverView> m_contentView; ///< the panel's
    std::shared_ptr<HotKeyMonitor> m_hotKeyMonitor;
    std::unique_ptr<QWidget> m_preferencesWindow;
    std::optional<RunningApplication> m_previousFrontmostApp;
    std::unique_ptr<ZoneWarmUp> m_zoneWarmUp; ///< under way since the first paint
    TextInserter m_inserter;
    DeadlineSet m_insertSteps;
    bool m_terminating = false;
};

} // namespace quorvane
