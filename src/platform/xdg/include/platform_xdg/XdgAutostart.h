// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Autostart.h>
#include <settings/DiskFileWriter.h>

#include <QObject>
#include <QStringList>

#include <memory>

class QFileSystemWatcher;

namespace quorvane {

/// An entry among the user's (freedesktop.org, Desktop Application Autostart). It counts as off
/// where there is none, or one that is hidden or switched off, as session managers do with entries
/// that the user takes out of their lists.
class XdgAutostart final : public QObject, public Autostart {
    Q_OBJECT

public:
    /// `folders` are those of settings, the user's own first.
    explicit XdgAutostart(QStringList folders);
    ~XdgAutostart() override;

    [[nodiscard]] bool isAvailable() const override { return true; }

    [[nodiscard]] bool isOn() const override;

    /// Switching on leaves an entry that is on as it is. Waits for the disk.
    void setOn(bool on) override;

    [[nodiscard]] Request request() const override { return m_request; }

    /// Begins to follow the files, also where there are none yet.
    void onChanged(std::function<void()> handler) override;

private:
    [[nodiscard]] QString ownEntry() const;
    [[nodiscard]] bool write(const QByteArray& entry);
    [[nodiscard]] bool switchOff();
    void watch();
    void filesChanged();

    QStringList m_folders;
    DiskFileWriter m_files;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    Request m_request = Request::Settled;
    std::function<void()> m_changed;
};

} // namespace quorvane
