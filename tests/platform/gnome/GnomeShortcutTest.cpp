// SPDX-License-Identifier: MIT
#include "../dbus/support/PrivateBus.h"
#include "support/FakeSettingsTool.h"

#include <platform/KeyCodes.h>
#include <platform_gnome/GnomeShortcut.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/SteppedMainQueue.h>

#include <QCoreApplication>
#include <QDBusPendingCall>
#include <QTest>
#include <gmock/gmock.h>

#include <MediaKeysDaemon.h>
#include <functional>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

const auto daemonName = u"org.gnome.SettingsDaemon.MediaKeys"_s;
const auto mediaKeys = u"org.gnome.settings-daemon.plugins.media-keys"_s;
const auto customKeys = u"custom-keybindings"_s;
const auto customFolder = u"/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/"_s;
const auto ownPath = customFolder + u"quorvane/"_s;
const auto othersPath = customFolder + u"custom0/"_s;

QString customSchema(const QString& path) {
    return mediaKeys + u".custom-keybinding:"_s + path;
}

constexpr KeyChord chord{keycode::d, modifier::control | modifier::shift | modifier::command};

constexpr KeyChord otherChord{keycode::a, modifier::command};

class GnomeShortcutTest : public testing::Test {
protected:
    GnomeShortcutTest() {
        layout.setKey(keycode::d, u"d");
        layout.setKey(keycode::a, u"a");
        shortcut.onChanged([this] { ++changes; });
        shortcut.onRebound([this](const KeyChord& to) { rebound.push_back(to); });
    }

    void startDaemon() {
        ASSERT_TRUE(daemon.registerService(daemonName));
        // That it is there, and what the list holds.
        ASSERT_TRUE(comesTo([this] { return changes == 2; }));
    }

    /// Returns when the list has been read anew.
    void refresh() {
        const auto before = changes;
        shortcut.refresh();
        ASSERT_TRUE(comesTo([&] { return changes > before; }));
    }

    /// What stands on standard error when the list has been read after the change.
    [[nodiscard]] std::string saidWhileBinding() {
        testing::internal::CaptureStderr();
        const auto before = changes;
        shortcut.bind(chord);
        EXPECT_TRUE(comesTo([&] { return changes > before; }));
        return testing::internal::GetCapturedStderr();
    }

    /// As dconf tells what was written, where it has its name. Returns when it has been heard.
    void notify(const QDBusConnection& from, const QString& written) {
        auto signal = QDBusMessage::createSignal(
            u"/ca/desrt/dconf/Writer/user"_s, u"ca.desrt.dconf.Writer"_s, u"Notify"_s);
        signal << written << QStringList(QString()) << u"tag"_s;
        ASSERT_TRUE(from.send(signal));
        // In order with the signal.
        const auto ping = from.asyncCall(QDBusMessage::createMethodCall(
            ours.baseService(), u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s));
        ASSERT_TRUE(comesTo([&] { return ping.isFinished(); }));
        QCoreApplication::sendPostedEvents();
    }

    void startDconf() {
        ASSERT_TRUE(dconf.registerService(u"ca.desrt.dconf"_s));
        startDaemon();
    }

    /// Returns when our entry is there.
    void bind() {
        shortcut.bind(chord);
        ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    }

    /// The user gives our entry other keys.
    void chooseOtherKeys() {
        tool.set(customSchema(ownPath), u"binding"_s, u"'<Super>a'"_s);
        notify(dconf, ownPath + u"binding"_s);
    }

    static bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition);
    }

    /// Another program's, or the user's own.
    void addAnother() {
        tool.set(mediaKeys, customKeys, u"['%1']"_s.arg(othersPath));
        tool.set(customSchema(othersPath), u"binding"_s, u"'<Super>a'"_s);
        tool.set(customSchema(othersPath), u"name"_s, u"'My notes'"_s);
    }

    PrivateBus bus;
    QDBusConnection daemon = bus.connection();
    QDBusConnection dconf = bus.connection();
    SteppedMainQueue queue;
    FakeKeyboardLayout layout;
    FakeSettingsTool tool;
    int changes = 0;
    std::vector<KeyChord> rebound;
    QDBusConnection ours = bus.connection();
    GnomeShortcut shortcut{ours, queue, layout, tool.program()};
};

TEST_F(GnomeShortcutTest, IsThereWhileTheDaemonOfTheKeysIs) {
    EXPECT_EQ(shortcut.desktopName(), QString());
    startDaemon();
    EXPECT_EQ(shortcut.desktopName(), u"GNOME"_s);
    daemon.unregisterService(daemonName);
    EXPECT_TRUE(comesTo([this] { return shortcut.desktopName().isEmpty(); }));
}

TEST_F(GnomeShortcutTest, IsNotThereWhereTheListCannotBeRead) {
    tool.forgetSchemas();
    ASSERT_TRUE(daemon.registerService(daemonName));
    EXPECT_TRUE(comesTo([this] { return changes >= 2; }));
    EXPECT_EQ(shortcut.desktopName(), QString());
}

TEST_F(GnomeShortcutTest, AddsAnEntryThatCallsTheProgramsAction) {
    startDaemon();
    shortcut.bind(chord);
    ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    EXPECT_THAT(
        tool.settings(),
        ElementsAre(
            Pair(mediaKeys + u' ' + customKeys, u"['%1']"_s.arg(ownPath)),
            Pair(customSchema(ownPath) + u" binding"_s, u"'<Control><Shift><Super>d'"_s),
            Pair(
                customSchema(ownPath) + u" command"_s,
                u"'gdbus call --session --dest org.quorvane.Quorvane"
                " --object-path /org/quorvane/Quorvane"
                " --method org.freedesktop.Application.ActivateAction toggle [] {}'"_s),
            Pair(customSchema(ownPath) + u" name"_s, u"'Quorvane'"_s)));
}

TEST_F(GnomeShortcutTest, ChangesItsEntryAndLeavesTheOthers) {
    addAnother();
    startDaemon();
    shortcut.bind(chord);
    shortcut.bind({keycode::f5, modifier::control});
    ASSERT_TRUE(comesTo([this] {
        return shortcut.bound() == KeyChord{keycode::f5, modifier::control};
    }));
    EXPECT_EQ(
        tool.settings()[mediaKeys + u' ' + customKeys], u"['%1', '%2']"_s.arg(othersPath, ownPath));
}

TEST_F(GnomeShortcutTest, RemovesItsEntryWithoutATrace) {
    startDaemon();
    shortcut.bind(chord);
    ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    shortcut.unbind();
    ASSERT_TRUE(comesTo([this] { return !shortcut.bound(); }));
    EXPECT_TRUE(tool.settings().empty());
}

TEST_F(GnomeShortcutTest, LeavesTheOthersWhenItRemovesItsEntry) {
    addAnother();
    const auto before = tool.settings();
    startDaemon();
    shortcut.bind(chord);
    ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    shortcut.unbind();
    ASSERT_TRUE(comesTo([this] { return !shortcut.bound(); }));
    EXPECT_EQ(tool.settings(), before);
}

TEST_F(GnomeShortcutTest, NamesTheCommandThatHasTheShortcut) {
    addAnother();
    tool.set(
        u"org.gnome.desktop.wm.keybindings"_s, u"show-desktop"_s, u"['<Primary><Shift><Mod4>d']"_s);
    tool.set(u"org.gnome.mutter.wayland.keybindings"_s, u"restore-shortcuts"_s, u"['<Super>F1']"_s);
    startDaemon();
    EXPECT_EQ(shortcut.holder(chord), u"Show desktop"_s);
    EXPECT_EQ(shortcut.holder({keycode::a, modifier::command}), u"My notes"_s);
    EXPECT_EQ(shortcut.holder({keycode::f1, modifier::command}), u"Restore shortcuts"_s);
    EXPECT_EQ(shortcut.holder({keycode::f2, modifier::command}), QString());
}

TEST_F(GnomeShortcutTest, DoesNotNameItself) {
    startDaemon();
    shortcut.bind(chord);
    ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    EXPECT_EQ(shortcut.holder(chord), QString());
}

TEST_F(GnomeShortcutTest, SeesWhatTheUserChangedInTheDesktopsSettings) {
    startDaemon();
    shortcut.bind(chord);
    ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    tool.set(customSchema(ownPath), u"binding"_s, u"'<Super>a'"_s);
    refresh();
    EXPECT_EQ(shortcut.bound(), (KeyChord{keycode::a, modifier::command}));
}

TEST_F(GnomeShortcutTest, TellsOfOtherKeysThatTheUserHasChosen) {
    startDconf();
    bind();
    EXPECT_TRUE(rebound.empty()) << "what was bound by ourselves";
    chooseOtherKeys();
    queue.advance(MediaKeysDaemon::writingDelay);
    ASSERT_TRUE(comesTo([this] { return !rebound.empty(); }));
    EXPECT_THAT(rebound, ElementsAre(otherChord));
}

TEST_F(GnomeShortcutTest, TellsOfTheKeysOfAnEntryThatItFinds) {
    tool.set(mediaKeys, customKeys, u"['%1']"_s.arg(ownPath));
    tool.set(customSchema(ownPath), u"binding"_s, u"'<Super>a'"_s);
    startDconf();
    EXPECT_THAT(rebound, ElementsAre(otherChord));
    refresh();
    EXPECT_EQ(rebound.size(), 1U) << "nothing new";
}

TEST_F(GnomeShortcutTest, KeepsToWhatIsBoundLastWhileItIsWritten) {
    startDconf();
    shortcut.bind(otherChord);
    shortcut.bind(chord);
    ASSERT_TRUE(comesTo([this] { return shortcut.bound() == chord; }));
    EXPECT_TRUE(rebound.empty());
}

TEST_F(GnomeShortcutTest, ReadsOnceWhatIsWrittenInARow) {
    startDconf();
    bind();
    for (int i = 0; i < 20; ++i)
        chooseOtherKeys();
    const auto before = changes;
    queue.advance(MediaKeysDaemon::writingDelay);
    ASSERT_TRUE(comesTo([&] { return changes > before; }));
    refresh();
    EXPECT_EQ(changes, before + 2) << "once for that, and once as it was asked to";
}

TEST_F(GnomeShortcutTest, HearsNobodyElseAndNothingElse) {
    startDconf();
    bind();
    const auto before = changes;
    notify(daemon, ownPath + u"binding"_s);
    notify(dconf, u"/org/gnome/desktop/interface/font-name"_s);
    queue.advance(MediaKeysDaemon::writingDelay);
    refresh();
    EXPECT_EQ(changes, before + 1) << "as it was asked to";
}

TEST_F(GnomeShortcutTest, WritesNothingWhereTheListMakesNoSense) {
    tool.set(mediaKeys, customKeys, u"['open"_s);
    startDaemon();
    const auto before = tool.settings();
    EXPECT_THAT(saidWhileBinding(), HasSubstr("GNOME's list of shortcuts could not be changed"));
    EXPECT_EQ(tool.settings(), before);
    EXPECT_EQ(shortcut.bound(), std::nullopt);
}

TEST_F(GnomeShortcutTest, SaysWhenTheDesktopTakesNoChange) {
    startDaemon();
    tool.refuseToWrite();
    EXPECT_THAT(saidWhileBinding(), HasSubstr("GNOME's list of shortcuts could not be changed"));
    EXPECT_EQ(shortcut.bound(), std::nullopt);
}

TEST_F(GnomeShortcutTest, WritesNothingWithoutTheDaemon) {
    shortcut.bind(chord);
    shortcut.unbind();
    shortcut.refresh();
    EXPECT_TRUE(tool.settings().empty());
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace quorvane
