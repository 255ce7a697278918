// SPDX-License-Identifier: MIT
#include <loop/Failure.h>
#include <platform_xdg/IniFile.h>
#include <platform_xdg/XdgAutostart.h>

#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>

#include <algorithm>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto folderName = u"/autostart"_s;
const auto fileName = u"/org.quorvane.Quorvane.desktop"_s;

// Started by name, so that an entry that outlives the program does nothing.
const QByteArray entry("[Desktop Entry]\n"
                       "Type=Application\n"
                       "Name=Quorvane\n"
                       "Exec=quorvane --hidden\n"
                       "TryExec=quorvane\n"
                       "Icon=org.quorvane.Quorvane\n"
                       "Terminal=false\n"
                       "StartupNotify=false\n");

// Takes the place of an entry of the system's, which cannot be removed.
const QByteArray hiddenEntry = entry + "Hidden=true\n";

QString entryIn(const QString& folder) {
    return folder + folderName + fileName;
}

bool startsProgram(const IniFile& file) {
    const auto value = [&file](const QString& key) {
        return file.value(u"Desktop Entry"_s, key).value_or(QString());
    };
    return !value(u"Exec"_s).isEmpty() && value(u"Hidden"_s) != "true"_L1 &&
           value(u"X-GNOME-Autostart-enabled"_s) != "false"_L1;
}

} // namespace

XdgAutostart::XdgAutostart(QStringList folders) : m_folders(std::move(folders)) {
}

XdgAutostart::~XdgAutostart() = default;

/// The first of the folders that has such a file decides.
bool XdgAutostart::isOn() const {
    const auto first = std::ranges::find_if(
        m_folders, [](const QString& folder) { return QFileInfo::exists(entryIn(folder)); });
    return first != m_folders.end() && startsProgram(IniFile::read(entryIn(*first)));
}

void XdgAutostart::setOn(bool on) {
    const bool isDone = isOn() == on || (on ? write(entry) : switchOff());
    if (!isDone)
        reportFailure(u"%1 cannot be changed"_s.arg(ownEntry()));
    m_request = isDone ? Request::Settled : Request::Refused;
    filesChanged();
}

void XdgAutostart::onChanged(std::function<void()> handler) {
    m_changed = std::move(handler);
    if (m_watcher)
        return;
    m_watcher = std::make_unique<QFileSystemWatcher>();
    for (const auto signal :
         {&QFileSystemWatcher::directoryChanged, &QFileSystemWatcher::fileChanged})
        connect(m_watcher.get(), signal, this, &XdgAutostart::filesChanged);
    watch();
}

QString XdgAutostart::ownEntry() const {
    return entryIn(m_folders.front());
}

bool XdgAutostart::write(const QByteArray& content) {
    const auto file = m_files.replace(ownEntry());
    return file->makeFolder() && file->open() && file->write(content) && file->commit();
}

bool XdgAutostart::switchOff() {
    if (QFileInfo::exists(ownEntry()) && !QFile::remove(ownEntry()))
        return false;
    return !isOn() || write(hiddenEntry);
}

/// A file that is replaced is another one afterwards, which only its folder tells, and a folder
/// that is made only the one above.
void XdgAutostart::watch() {
    const auto own = m_folders.front();
    const auto watched = m_watcher->files() + m_watcher->directories();
    for (const auto& path : {own, own + folderName, ownEntry()}) {
        if (!watched.contains(path) && QFileInfo::exists(path))
            m_watcher->addPath(path);
    }
}

void XdgAutostart::filesChanged() {
    if (m_watcher)
        watch();
    if (const auto handler = m_changed)
        handler();
}

} // namespace quorvane
