// SPDX-License-Identifier: MIT
#include <platform/GtkAppearance.h>
#include <platform_xdg/FileAppearance.h>
#include <platform_xdg/KdeAppearance.h>

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const QStringList gtkFolders{u"/gtk-3.0"_s, u"/gtk-4.0"_s};
const auto gtkFile = u"/settings.ini"_s;
const auto kdeFile = u"/kdeglobals"_s;

/// GTK's words for yes and no; none for others.
std::optional<bool> flagOf(const std::optional<QString>& text) {
    if (!text)
        return std::nullopt;
    const auto word = text->toLower();
    if (word == "true"_L1 || word == "yes"_L1 || word == "1"_L1)
        return true;
    if (word == "false"_L1 || word == "no"_L1 || word == "0"_L1)
        return false;
    return std::nullopt;
}

template <typename T>
void complete(std::optional<T>& value, const std::optional<T>& next) {
    if (!value)
        value = next;
}

/// What a file does not say, the next one may.
void completeFrom(const IniFile& file, GtkSettings& settings) {
    const auto value = [&file](const QString& key) {
        return file.value(u"Settings"_s, key);
    };
    complete(settings.themeName, value(u"gtk-theme-name"_s));
    complete(settings.prefersDarkTheme, flagOf(value(u"gtk-application-prefer-dark-theme"_s)));
    complete(settings.fontName, value(u"gtk-font-name"_s));
    complete(settings.animates, flagOf(value(u"gtk-enable-animations"_s)));
}

DesktopAppearance completed(DesktopAppearance appearance, const DesktopAppearance& next) {
    complete(appearance.scheme, next.scheme);
    complete(appearance.accent, next.accent);
    complete(appearance.font, next.font);
    appearance.wantsLessMotion = appearance.wantsLessMotion || next.wantsLessMotion;
    return appearance;
}

} // namespace

FileAppearance::FileAppearance(QStringList folders)
    : m_folders(std::move(folders)),
      m_current(readFiles()) {
}

FileAppearance::~FileAppearance() = default;

void FileAppearance::read() {
    if (m_watcher)
        return;
    m_watcher = std::make_unique<QFileSystemWatcher>();
    connect(
        m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &FileAppearance::readAgain);
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, &FileAppearance::readAgain);
    // What was changed between the first reading and the watch is seen here.
    readAgain();
}

DesktopAppearance FileAppearance::readFiles() const {
    GtkSettings gtk;
    DesktopAppearance kde;
    for (const auto& folder : m_folders) {
        for (const auto& gtkFolder : gtkFolders)
            completeFrom(IniFile::read(folder + gtkFolder + gtkFile), gtk);
        kde = completed(kde, appearanceOfKde(IniFile::read(folder + kdeFile)));
    }
    return completed(appearanceOf(gtk), kde);
}

/// A file that is replaced is another one afterwards, which only its folder tells.
void FileAppearance::watch() {
    QStringList paths;
    for (const auto& folder : m_folders) {
        paths << folder << folder + kdeFile;
        for (const auto& gtkFolder : gtkFolders)
            paths << folder + gtkFolder << folder + gtkFolder + gtkFile;
    }
    const auto watched = m_watcher->files() + m_watcher->directories();
    for (const auto& path : paths) {
        if (!watched.contains(path) && QFileInfo::exists(path))
            m_watcher->addPath(path);
    }
}

void FileAppearance::readAgain() {
    watch();
    const auto now = readFiles();
    const auto handler = m_changed;
    if (std::exchange(m_current, now) != now && handler)
        handler();
}

} // namespace quorvane
