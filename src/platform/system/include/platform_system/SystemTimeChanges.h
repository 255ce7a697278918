// SPDX-License-Identifier: MIT
#pragma once

#include <platform/TimeChanges.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <memory>

class QSocketNotifier;

namespace quorvane {

/// Told by the kernel: a timer that is cancelled when the clock jumps, as it does when it is set
/// and when the machine wakes up, and the file that names the zone.
class SystemTimeChanges final : public QObject, public TimeChanges {
    Q_OBJECT

public:
    /// `zoneFile` is a link or a copy of a zone's data, which need not exist; empty for a zone that
    /// no file sets.
    explicit SystemTimeChanges(QString zoneFile);
    ~SystemTimeChanges() override;

    void onChanged(std::function<void()> handler) override;

private:
    void arm() const;
    void hearClock();
    void watchZoneFile();
    void lookAtZoneFile();
    [[nodiscard]] QString zoneFileState() const;

    QString m_zoneFile;
    QString m_zoneFileState;
    QFileSystemWatcher m_files;
    int m_timer; ///< negative where there is none
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_handler;
};

} // namespace quorvane
