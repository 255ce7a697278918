// SPDX-License-Identifier: MIT
#include "Accelerator.h"
#include "BoundCommands.h"
#include "GVariantText.h"
#include "SettingsCommand.h"

#include <loop/Failure.h>
#include <platform_gnome/GnomeShortcut.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto daemonName = u"org.gnome.SettingsDaemon.MediaKeys"_s;
const auto mediaKeys = u"org.gnome.settings-daemon.plugins.media-keys"_s;
const auto customKeys = u"custom-keybindings"_s;
const auto ownPath =
    u"/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/quorvane/"_s;

/// Where shortcuts stand that would win over ours without a word, the list of the daemon first.
const std::array lists{
    mediaKeys,
    u"org.gnome.desktop.wm.keybindings"_s,
    u"org.gnome.shell.keybindings"_s,
    u"org.gnome.mutter.keybindings"_s,
    u"org.gnome.mutter.wayland.keybindings"_s};

/// Run by the daemon, without a shell; the bus starts the program where it does not run.
const auto command =
    u"gdbus call --session --dest org.quorvane.Quorvane --object-path /org/quorvane/Quorvane "
    "--method org.freedesktop.Application.ActivateAction toggle [] {}"_s;

QString customSchema(const QString& path) {
    return mediaKeys + u".custom-keybinding:"_s + path;
}

QStringList setting(const QString& schema, const QString& key, const QString& value) {
    return {u"set"_s, schema, key, value};
}

/// An empty list is what GNOME comes with: nothing stays behind.
QStringList settingOfPaths(const QStringList& paths) {
    if (paths.isEmpty())
        return {u"reset"_s, mediaKeys, customKeys};
    return setting(mediaKeys, customKeys, gvarianttext::fromStrings(paths));
}

} // namespace

GnomeShortcut::GnomeShortcut(
    const QDBusConnection& bus, MainQueue& queue, const KeyboardLayout& layout, QString program)
    : m_queue(queue),
      m_layout(layout),
      m_program(std::move(program)),
      m_read(std::make_unique<BoundCommands>(ownPath)) {
    if (bus.isConnected())
        askForDaemon(bus);
}

GnomeShortcut::~GnomeShortcut() = default;

QString GnomeShortcut::desktopName() const {
    return m_isDaemonThere && m_isListThere ? u"GNOME"_s : QString();
}

std::optional<KeyChord> GnomeShortcut::bound() const {
    const auto accelerator = Accelerator::parse(m_read->own().value_or(QString()));
    return accelerator ? accelerator->chord(m_layout) : std::nullopt;
}

QString GnomeShortcut::holder(const KeyChord& chord) const {
    const auto wanted = KeyChord{chord.keyCode, chord.flags & modifier::counted};
    const auto& others = m_read->others();
    const auto binding = std::ranges::find_if(others, [&](const BoundCommands::Binding& other) {
        const auto accelerator = Accelerator::parse(other.accelerator);
        return accelerator && accelerator->chord(m_layout) == wanted;
    });
    return binding == others.end() ? QString() : binding->command;
}

void GnomeShortcut::refresh() {
    if (!m_isDaemonThere || std::exchange(m_isRefreshDue, true))
        return;
    enqueue([this] {
        m_isRefreshDue = false;
        m_isOwnChange = false;
        read();
    });
}

void GnomeShortcut::read() {
    m_reading = std::make_unique<BoundCommands>(ownPath);
    readLists(0);
}

void GnomeShortcut::bind(const KeyChord& chord) {
    const auto accelerator = Accelerator::of(chord, m_layout);
    if (!m_isDaemonThere || !accelerator)
        return;
    changePaths([text = accelerator->text()](QStringList paths) {
        const auto schema = customSchema(ownPath);
        std::deque<QStringList> commands{
            setting(schema, u"name"_s, gvarianttext::fromString(u"Quorvane"_s)),
            setting(schema, u"command"_s, gvarianttext::fromString(command)),
            setting(schema, u"binding"_s, gvarianttext::fromString(text))};
        if (!paths.contains(ownPath))
            commands.push_back(settingOfPaths(paths << ownPath));
        return commands;
    });
}

void GnomeShortcut::unbind() {
    if (!m_isDaemonThere)
        return;
    changePaths([](QStringList paths) {
        std::deque<QStringList> commands;
        if (paths.removeAll(ownPath) > 0)
            commands.push_back(settingOfPaths(paths));
        commands.push_back({u"reset-recursively"_s, customSchema(ownPath)});
        return commands;
    });
}

void GnomeShortcut::askForDaemon(const QDBusConnection& bus) {
    QDBusConnection connection(bus);
    connection.connect(
        u"org.freedesktop.DBus"_s,
        u"/org/freedesktop/DBus"_s,
        u"org.freedesktop.DBus"_s,
        u"NameOwnerChanged"_s,
        {daemonName},
        u"sss"_s,
        this,
        SLOT(handleOwner(QString, QString, QString)));
    connection.connect(
        u"ca.desrt.dconf"_s,
        QString(),
        u"ca.desrt.dconf.Writer"_s,
        u"Notify"_s,
        this,
        SLOT(handleNotice(QDBusMessage)));
    auto question = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s,
        u"/org/freedesktop/DBus"_s,
        u"org.freedesktop.DBus"_s,
        u"NameHasOwner"_s);
    question << daemonName;
    auto* answer = new QDBusPendingCallWatcher(connection.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<bool> isThere = *answer;
        if (isThere.isValid() && isThere.value())
            setDaemonThere(true);
    });
}

void GnomeShortcut::handleOwner(
    const QString& /*name*/, const QString& /*oldOwner*/, const QString& newOwner) {
    setDaemonThere(!newOwner.isEmpty());
}

/// Told is the folder or the setting that what was written has in common.
void GnomeShortcut::handleNotice(const QDBusMessage& signal) {
    if (signal.signature() != "sass"_L1)
        return;
    const auto written = signal.arguments().constFirst().toString();
    const bool isOurs = written.startsWith(ownPath) || ownPath.startsWith(written);
    if (!isOurs || std::exchange(m_isReadingSoon, true))
        return;
    m_readingSoon = m_queue.after(readingDelay, [this] {
        m_isReadingSoon = false;
        refresh();
    });
}

void GnomeShortcut::setDaemonThere(bool isThere) {
    m_isDaemonThere = isThere;
    refresh();
    tellChanged();
}

void GnomeShortcut::tellChanged() const {
    const auto handler = m_changed;
    if (handler)
        handler();
}

void GnomeShortcut::tellRebound() const {
    const auto handler = m_rebound;
    const auto chord = bound();
    if (handler && chord)
        handler(*chord);
}

/// What is to be done waits for what was asked before: each change begins with what stands there.
void GnomeShortcut::enqueue(Task task) {
    m_tasks.push_back(std::move(task));
    if (m_tasks.size() == 1)
        startNext();
}

void GnomeShortcut::startNext() {
    if (!m_tasks.empty())
        m_tasks.front()();
}

void GnomeShortcut::finishTask() {
    m_tasks.pop_front();
    startNext();
}

void GnomeShortcut::run(const QStringList& arguments, Lines done, Task failed) {
    m_command = std::make_unique<SettingsCommand>(
        m_queue,
        m_program,
        arguments,
        [this, done = std::move(done), failed = std::move(failed)](
            const std::optional<QByteArray>& output) {
            if (output)
                done(QString::fromUtf8(*output));
            else
                failed();
        });
}

void GnomeShortcut::write(std::deque<QStringList> commands) {
    if (commands.empty()) {
        finishTask();
        return;
    }
    const auto next = commands.front();
    commands.pop_front();
    run(
        next,
        [this, commands = std::move(commands)](const QString&) { write(commands); },
        [this] { failToWrite(); });
}

void GnomeShortcut::failToWrite() {
    reportFailure(u"GNOME's list of shortcuts could not be changed"_s);
    finishTask();
}

void GnomeShortcut::failToRead() {
    m_isListThere = false;
    finishTask();
    tellChanged();
}

void GnomeShortcut::readLists(std::size_t next) {
    if (next == lists.size()) {
        readCustom(m_reading->customPaths().value_or(QStringList()));
        return;
    }
    const auto goOn = [this, next] {
        readLists(next + 1);
    };
    const auto take = [this, goOn](const QString& lines) {
        m_reading->addList(lines);
        goOn();
    };
    // Only the daemon's own list has to be there.
    const auto failed = next == 0 ? Task([this] { failToRead(); }) : Task(goOn);
    run({u"list-recursively"_s, lists[next]}, take, failed);
}

void GnomeShortcut::readCustom(QStringList paths) {
    if (paths.isEmpty()) {
        adopt();
        return;
    }
    const auto path = paths.takeFirst();
    const auto goOn = [this, paths] {
        readCustom(paths);
    };
    run(
        {u"list-recursively"_s, customSchema(path)},
        [this, path, goOn](const QString& lines) {
            m_reading->addCustom(path, lines);
            goOn();
        },
        goOn);
}

void GnomeShortcut::adopt() {
    const bool isRebound = !m_isOwnChange && m_reading->own() != m_read->own();
    m_read = std::move(m_reading);
    m_isListThere = true;
    finishTask();
    if (isRebound)
        tellRebound();
    tellChanged();
}

/// Changes are made to what the list holds by then, and read back whether they were made or not.
void GnomeShortcut::changePaths(
    const std::function<std::deque<QStringList>(QStringList paths)>& commands) {
    enqueue([this, commands] {
        const auto change = [this, commands](const QString& answer) {
            const auto paths = gvarianttext::strings(answer);
            if (paths)
                write(commands(*paths));
            else
                failToWrite();
        };
        run({u"get"_s, mediaKeys, customKeys}, change, [this] { failToWrite(); });
    });
    enqueue([this] {
        m_isOwnChange = true;
        read();
    });
}

} // namespace quorvane
