// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "AppearanceFollower.h"
#include "ApplicationAccessible.h"
#include "CommandLine.h"
#include "FontsReadAhead.h"
#include "StartupScope.h"
#include "TerminationSignals.h"

#include <controls/DrawnIcon.h>
#include <controls/ToolTipWrapping.h>
#include <language/InterfaceLanguage.h>
#include <loop/Failure.h>
#include <loop/QtMainQueue.h>
#include <loop/RepeatedWarnings.h>
#include <platform/ActivationToken.h>
#include <platform_dbus/DBusApplicationInstance.h>
#include <platform_dbus/HungBusGuard.h>
#include <settings/DiskFileWriter.h>
#include <settings/JsonDefaultsStore.h>
#include <settings/ThreadSettingsWriter.h>
#include <settings/UserFolders.h>
#include <time/SystemCurrentZone.h>

#include <QApplication>
#include <QThreadPool>

#include <backends/PlatformChoice.h>
#include <backends/QtPlaces.h>
#include <backends/QtPlatformChoice.h>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace std::chrono_literals;

// A start on a bus that hangs is to be done within two seconds.
constexpr auto busPatience = 1500ms;
constexpr auto diskPatience = 5s;
// Longer than a busy compositor takes while a session starts: what it says decides for the whole
// run.
constexpr auto compositorPatience = 5s;

// The status by which shells tell that a program was called in a wrong way.
constexpr int misuse = 2;

/// What is still written while the program ends.
struct Disk {
    QtMainQueue outcomes;
    DiskFileWriter files;
    ThreadSettingsWriter settings{files, outcomes};
};

void configure(QApplication& application) {
    application.setApplicationName(u"quorvane"_s);
    application.setApplicationVersion(QStringLiteral(QUORVANE_VERSION));
    application.setDesktopFileName(u"org.quorvane.Quorvane"_s);
    application.setQuitOnLastWindowClosed(false);
}

/// Qt shares out among a pool's threads what covers more than 64 rows, and even a symbol's outline.
/// One thread will do for that, and it stays: half a minute after the last paint it would end,
/// which wakes a program that nobody uses, and the next showing would wait for another.
void keepOnePaintingThread() {
    auto* pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(1);
    pool->setExpiryTimeout(-1);
}

/// Qt draws it in four sizes for each window; the panel is in no taskbar that would show it.
void setWindowIcon() {
    QGuiApplication::setWindowIcon(drawnIcon(u":/icons/org.quorvane.Quorvane.svg"_s));
}

ApplicationInstance::Request requestOf(const CommandLine& line) {
    using Request = ApplicationInstance::Request;
    return line.isHidden ? Request::Nothing : Request::Show;
}

AppDelegate::Launch launchOf(const CommandLine& line) {
    return line.isHidden ? AppDelegate::Launch::Hidden : AppDelegate::Launch::Shown;
}

/// Ends the program, with a status by which a session starts it anew.
std::function<void()> endingIn(MainQueue& queue) {
    return [&queue, hasBegun = std::make_shared<bool>(false)] {
        if (std::exchange(*hasBegun, true))
            return;
        reportFailure(u"the connection to the display is lost"_s);
        queue.async([] { QCoreApplication::exit(EXIT_FAILURE); });
    };
}

int run(
    QApplication& application,
    SettingsWriter& writer,
    ApplicationInstance& instance,
    AppDelegate::Launch launch,
    const ActivationToken& token,
    FontsReadAhead& fonts,
    std::unique_ptr<const Compositor> compositor) {
    const auto environment = processEnvironment();
    const auto folders = UserFolders::fromEnvironment(environment);
    QtMainQueue mainQueue;
    SystemClock clock;
    ZoneDatabase zones(zoneDirectory(environment));
    SystemCurrentZone currentZone(zones, environment);
    JsonDefaultsStore defaults(folders.defaultsFile(), writer);
    WindowFrameStore windowFrames(folders.windowsFile(), writer);
    auto platform = makePlatformServices(
        {environment,
         QGuiApplication::platformName(),
         mainQueue,
         defaults,
         *compositor,
         endingIn(mainQueue)});
    // Its connection lives on if a service uses it.
    compositor.reset();
    AppearanceFollower appearanceFollower(
        *platform.appearance,
        AppearanceFollower::paletteSource(),
        AppearanceFollower::fontSource(),
        {[&platform] {
            return platform.windowTraits->isComposited();
        }});
    const ToolTipWrapping toolTips;

    AppDelegate delegate(
        {clock,
         defaults,
         windowFrames,
         currentZone,
         zones,
         UserLocale::fromEnvironment(environment),
         mainQueue,
         platform,
         environment});
    appearanceFollower.onApplied([&] { delegate.appearanceChanged(); });
    // Through the queue, so that requests from the bus run after the launch.
    const auto serve = [&](const ActivationToken& request, std::function<void()> answer) {
        mainQueue.async([&, request, answer = std::move(answer)] {
            const StartupScope scope(*platform.startupNotification, request);
            answer();
        });
    };
    serve(token, [&delegate, &fonts, launch] {
        fonts.finish();
        delegate.applicationDidFinishLaunching(launch);
    });
    instance.onReopen([&](const ActivationToken& request) {
        serve(request, [&delegate] { delegate.surfaceMainUIForReopen(); });
    });
    instance.onAction([&](const QString& name, const ActivationToken& request) {
        serve(request, [&delegate, name] { delegate.performAction(name); });
    });
    QObject::connect(&delegate, &AppDelegate::willTerminate, [&] { instance.release(); });
    QObject::connect(&delegate, &AppDelegate::hasPainted, &setWindowIcon);
    const TerminationSignals signals([&] { delegate.terminate(); });
    return application.exec();
}

} // namespace

int main(int argc, char** argv) {
    writeRepeatedWarningsOnce();
    const auto environment = processEnvironment();
    // Before Qt, which would take it for the first window that shows, whenever that is.
    const auto token = takeActivationTokenOfProcess();
    HungBusGuard busGuard(environment, busPatience);
    ApplicationAccessible::install();
    auto compositor =
        std::make_unique<const Compositor>(Compositor::ask(environment, compositorPatience));
    const auto qtPlatform = chooseQtPlatform(environment, *compositor);
    if (qtPlatform == QtPlatform::None) {
        reportFailure(u"the compositor does not answer"_s);
        return EXIT_FAILURE;
    }
    QtPlatformSetting qtPlatformSetting(qtPlatform);
    letQtKeepPlaces(environment);
    QApplication application(argc, argv);
    qtPlatformSetting.settle();
    busGuard.settle();
    FontsReadAhead fonts;
    configure(application);
    keepOnePaintingThread();
    const auto commandLine = CommandLine::parse(application.arguments());
    if (!commandLine.unknown.isEmpty()) {
        reportFailure(
            u"unknown argument %1; the only option is --hidden"_s.arg(commandLine.unknown.first()));
        return misuse;
    }
    DBusApplicationInstance instance(
        QDBusConnection::sessionBus(), BusSocket::ofSession(environment));
    // The constructor of the model writes settings, which a second process must not do.
    if (instance.claim(requestOf(commandLine), token) == ApplicationInstance::Role::Second)
        return 0;
    const InterfaceLanguage language(environment);
    QGuiApplication::setLayoutDirection(language.direction());
    // Static: exit(), which Qt calls when its connection to the display breaks, waits for it, too.
    static Disk disk;
    const int status =
        run(application,
            disk.settings,
            instance,
            launchOf(commandLine),
            token,
            fonts,
            std::move(compositor));
    // All that the session could miss has been given back: windows, keys, clipboard, bus name.
    if (!disk.settings.finish(diskPatience))
        reportFailure(u"the disk does not answer; waiting until it has taken the settings"_s);
    return status;
}
