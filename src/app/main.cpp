// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "AppearanceFollower.h"
#include "ApplicationAccessible.h"
#include "Backends.h"
#include "TerminationSignals.h"

#include <loop/QtMainQueue.h>
#include <platform_dbus/DBusApplicationInstance.h>
#include <settings/DiskFileWriter.h>
#include <settings/JsonDefaultsStore.h>
#include <settings/UserFolders.h>
#include <time/SystemCurrentZone.h>

#include <QApplication>
#include <QIcon>

namespace {

using namespace Qt::StringLiterals;
using namespace quorvane;

void configure(QApplication& application) {
    application.setApplicationName(u"quorvane"_s);
    application.setApplicationVersion(QStringLiteral(QUORVANE_VERSION));
    application.setDesktopFileName(u"org.quorvane.Quorvane"_s);
    // Qt reads SVG with a plugin that comes with Qt Svg, which we link anyway.
    application.setWindowIcon(QIcon(u":/icons/org.quorvane.Quorvane.svg"_s));
    application.setQuitOnLastWindowClosed(false);
}

int run(QApplication& application, TerminationSignals& signals, ApplicationInstance& instance) {
    const auto environment = processEnvironment();
    const auto folders = UserFolders::fromEnvironment(environment);
    QtMainQueue mainQueue;
    SystemClock clock;
    ZoneDatabase zones;
    SystemCurrentZone currentZone(zones, environment);
    DiskFileWriter files;
    JsonDefaultsStore defaults(folders.defaultsFile(), files);
    WindowFrameStore windowFrames(folders.windowsFile(), files);
    auto platform = makePlatformServices(environment, QGuiApplication::platformName(), mainQueue);
    const AppearanceFollower appearanceFollower(
        *platform.appearance, AppearanceFollower::paletteSource());

    AppDelegate delegate(
        {clock,
         defaults,
         windowFrames,
         currentZone,
         zones,
         UserLocale::fromEnvironment(environment),
         mainQueue,
         platform});
    mainQueue.async([&] { delegate.applicationDidFinishLaunching(); });
    // Through the queue as well, so that requests from the bus run after the launch.
    instance.onReopen([&] { mainQueue.async([&] { delegate.surfaceMainUIForReopen(); }); });
    instance.onAction(
        [&](const QString& name) { mainQueue.async([&, name] { delegate.performAction(name); }); });
    QObject::connect(&delegate, &AppDelegate::willTerminate, [&] { instance.release(); });
    signals.onSignal([&] { delegate.terminate(); });
    return application.exec();
}

} // namespace

int main(int argc, char** argv) {
    TerminationSignals signals;
    ApplicationAccessible::install();
    QApplication application(argc, argv);
    configure(application);
    DBusApplicationInstance instance;
    // The constructor of the model writes settings, which a second process must not do.
    if (instance.claim() == ApplicationInstance::Role::Second)
        return 0;
    return run(application, signals, instance);
}
