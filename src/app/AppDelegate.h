// SPDX-License-Identifier: MIT
#pragma once

#include "DeliveryNotice.h"
#include "DockPresence.h"
#include "GlobalShortcut.h"
#include "HiddenStart.h"
#include "Insertion.h"
#include "ModelObserver.h"
#include "PreferencesWindowController.h"
#include "Presentation.h"
#include "PreviousFrontmostApp.h"
#include "ShortcutHint.h"
#include "TimeFollower.h"
#include "TrayIcon.h"
#include "TypingConsent.h"

#include <platform/PlatformServices.h>
#include <settings/DefaultsStore.h>
#include <settings/Environment.h>
#include <time/CurrentZone.h>
#include <time/UserLocale.h>
#include <timezones/ZoneWarmUp.h>

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace quorvane {

class MainMenu;

/// The program as a whole: owns the model and the parts that show and serve it, starts and ends
/// them, and answers the requests that concern more than one of them.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the delegate.
    struct Dependencies {
        Clock& clock;
        DefaultsStore& defaults;
        WindowFrameStore& windowFrames;
        CurrentZone& currentZone;
        ZoneDatabase& zones;
        UserLocale locale;
        MainQueue& mainQueue;
        PlatformServices& platform;
        Environment environment = {}; ///< of the session; none for one that tells nothing
    };

    /// How the program begins.
    enum class Launch {
        Shown,
        Hidden ///< only the icon and the shortcut, as far as there is one of them
    };

    /// The running delegate, for code that cannot be handed one, such as a debugger's; null before
    /// the launch. Nothing in the program itself asks for it.
    [[nodiscard]] static QPointer<AppDelegate>&
    _sharedDelegate(); // NOLINT(readability-identifier-naming)

    explicit AppDelegate(Dependencies dependencies);
    ~AppDelegate() override;

    /// Start-up, once the main loop runs: shows the interface, or not, and arms the shortcut.
    void applicationDidFinishLaunching(Launch launch = Launch::Shown);

    /// Shows the interface, or hides it; what the shortcut does, and a key that the desktop binds.
    void togglePresentation() { m_presentation.toggle(InputDevice::Keyboard); }

    /// Shows the interface, also when it is shown already: the user opened the program again.
    void surfaceMainUIForReopen();

    /// Hides the interface and types the output into the application that was in front before, or
    /// while the interface is hidden into the one that is.
    void performInsert();

    /// Puts the output on the pasteboard.
    void performCopy();

    void showPreferences();
    void showPreferences(PreferencesPlace place);

    /// The user has chosen to allow typing: the desktop asks, if it has not got the answer.
    void allowTyping() { m_typingConsent.allow(); }

    /// More is known of how the desktop looks than its palette tells.
    void appearanceChanged() { m_trayIcon.refreshImage(); }

    /// Shows where an update would come from.
    void checkForUpdates();

    /// Does what the desktop calls by name: "toggle", "insert", "copy", "preferences", "quit".
    /// An unknown name does nothing, nor do "insert" and "copy" while there is nothing to deliver.
    void performAction(const QString& name);

    /// Ends the process, once the user's clipboard is restored and will outlive the program.
    void terminate();

    [[nodiscard]] DateTimeModel& model() { return m_model; }

    /// Null before the launch; for tests.
    [[nodiscard]] const HotKeyMonitor* hotKeyMonitor() const { return m_shortcut.monitor(); }

    /// The mode actually used, where the model's cannot be; for tests.
    [[nodiscard]] PresentationMode effectivePresentationMode() const {
        return m_presentation.effectivePresentationMode();
    }

Q_SIGNALS:
    /// The interface has been painted for the first time, or begins hidden: what nobody waits for
    /// can be done.
    void hasPainted();

    /// The program is about to end; the process lives until the pasteboard is handed over.
    void willTerminate();

private:
    [[nodiscard]] std::function<void()> weakly(void (AppDelegate::*call)());
    [[nodiscard]] TrayIcon::Callbacks trayIconCallbacks();
    [[nodiscard]] InterfaceCallbacks interfaceCallbacks();
    [[nodiscard]] PreferencesWindowController::Callbacks preferencesCallbacks();
    [[nodiscard]] ModelObserver::Callbacks modelCallbacks();
    [[nodiscard]] DeliveryNotice::Callbacks noticeCallbacks();
    [[nodiscard]] Insertion::Callbacks insertionCallbacks();
    [[nodiscard]] PopoverView::Callbacks contentViewCallbacks();

    /// Before a showing: takes new zone data, and the present moment where the dates follow it.
    void renew();
    void renewHidden();
    void setupMainMenu();
    void startHidden();
    void makeReady();
    void handleShortcut();
    [[nodiscard]] bool isReachable() const;
    void observeDesktop();
    void refreshSoon();
    void adoptShortcut(const KeyChord& chord);
    void shortcutDidChange();
    void prepareAfterFirstPaint();

    Dependencies m_dependencies;
    DateTimeModel m_model;
    std::unique_ptr<MainMenu> m_mainMenu; ///< null before the launch
    TrayIcon m_trayIcon;
    PreviousFrontmostApp m_previousFrontmostApp;
    Presentation m_presentation;
    GlobalShortcut m_shortcut;
    ShortcutHint m_shortcutHint;
    PreferencesWindowController m_preferences;
    DockPresence m_dock;
    ModelObserver m_modelObserver;
    std::unique_ptr<ZoneWarmUp> m_zoneWarmUp; ///< null before the first paint
    DeliveryNotice m_notice;
    TypingConsent m_typingConsent;
    Insertion m_insertion;
    TimeFollower m_timeFollower;
    HiddenStart m_hiddenStart;
    bool m_terminating = false;
};

} // namespace quorvane
