// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QFileSystemWatcher;

namespace quorvane {

/// The appearance as GTK's settings.ini and KDE's kdeglobals tell it, where no program shares the
/// settings: under a bare window manager. Known from the beginning; read() begins to follow the
/// files, also those that are not there yet.
class FileAppearance final : public QObject, public Appearance {
    Q_OBJECT

public:
    /// `folders` are those of settings, the user's own first.
    explicit FileAppearance(QStringList folders);
    ~FileAppearance() override;

    [[nodiscard]] DesktopAppearance current() const override { return m_current; }

    void read() override;

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

private:
    [[nodiscard]] DesktopAppearance readFiles() const;
    void watch();
    void readAgain();

    QStringList m_folders;
    DesktopAppearance m_current;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    std::function<void()> m_changed;
};

} // namespace quorvane
