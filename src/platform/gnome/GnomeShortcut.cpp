// SPDX-License-Identifier: MIT
#include "Accelerator.h"
#include "BoundCommands.h"
#include "GVariantText.h"
#include "MediaKeysDaemon.h"
#include "SettingsTasks.h"

#include <loop/Failure.h>
#include <platform_gnome/GnomeShortcut.h>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

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
    : m_layout(layout),
      m_daemon(std::make_unique<MediaKeysDaemon>(bus, queue, ownPath)),
      m_tasks(std::make_unique<SettingsTasks>(queue, std::move(program))),
      m_read(std::make_unique<BoundCommands>(ownPath)) {
    m_daemon->onChanged([this] {
        refresh();
        tellChanged();
    });
    m_daemon->onWritten([this] { refresh(); });
}

GnomeShortcut::~GnomeShortcut() = default;

QString GnomeShortcut::desktopName() const {
    return m_daemon->isThere() && m_isListThere ? u"GNOME"_s : QString();
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
    if (!m_daemon->isThere() || std::exchange(m_isRefreshDue, true))
        return;
    m_tasks->add([this] {
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
    if (!m_daemon->isThere() || !accelerator)
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
    if (!m_daemon->isThere())
        return;
    changePaths([](QStringList paths) {
        std::deque<QStringList> commands;
        if (paths.removeAll(ownPath) > 0)
            commands.push_back(settingOfPaths(paths));
        commands.push_back({u"reset-recursively"_s, customSchema(ownPath)});
        return commands;
    });
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

void GnomeShortcut::write(std::deque<QStringList> commands) {
    m_tasks->runAll(
        std::move(commands), [this] { m_tasks->finish(); }, [this] { failToWrite(); });
}

void GnomeShortcut::failToWrite() {
    reportFailure(u"GNOME's list of shortcuts could not be changed"_s);
    m_tasks->finish();
}

void GnomeShortcut::failToRead() {
    m_isListThere = false;
    m_tasks->finish();
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
    m_tasks->run({u"list-recursively"_s, lists[next]}, take, failed);
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
    m_tasks->run(
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
    m_tasks->finish();
    if (isRebound)
        tellRebound();
    tellChanged();
}

/// Changes are made to what the list holds by then, and read back whether they were made or not.
void GnomeShortcut::changePaths(
    const std::function<std::deque<QStringList>(QStringList paths)>& commands) {
    m_tasks->add([this, commands] {
        const auto change = [this, commands](const QString& answer) {
            const auto paths = gvarianttext::strings(answer);
            if (paths)
                write(commands(*paths));
            else
                failToWrite();
        };
        m_tasks->run({u"get"_s, mediaKeys, customKeys}, change, [this] { failToWrite(); });
    });
    m_tasks->add([this] {
        m_isOwnChange = true;
        read();
    });
}

} // namespace quorvane
