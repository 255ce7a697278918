// SPDX-License-Identifier: MIT
#include <platform_system/SystemTimeChanges.h>

#include <QDateTime>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cerrno>
#include <cstdint>
#include <limits>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

SystemTimeChanges::SystemTimeChanges(QString zoneFile)
    : m_zoneFile(std::move(zoneFile)),
      m_timer(::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)) {
    if (m_timer >= 0) {
        m_notifier = std::make_unique<QSocketNotifier>(m_timer, QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &SystemTimeChanges::hearClock);
        arm();
    }
    connect(
        &m_files, &QFileSystemWatcher::directoryChanged, this, &SystemTimeChanges::lookAtZoneFile);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, &SystemTimeChanges::lookAtZoneFile);
    m_zoneFileState = zoneFileState();
    watchZoneFile();
}

SystemTimeChanges::~SystemTimeChanges() {
    m_notifier.reset();
    if (m_timer >= 0)
        ::close(m_timer);
}

void SystemTimeChanges::onChanged(std::function<void()> handler) {
    m_handler = std::move(handler);
}

/// For a time that never comes: all that is of interest is what cancels it.
void SystemTimeChanges::arm() const {
    itimerspec never{};
    never.it_value.tv_sec = std::numeric_limits<time_t>::max();
    ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never, nullptr);
}

void SystemTimeChanges::hearClock() {
    std::uint64_t expirations = 0;
    const bool isCancelled =
        ::read(m_timer, &expirations, sizeof expirations) < 0 && errno == ECANCELED;
    if (!isCancelled)
        return;
    arm();
    if (m_handler)
        m_handler();
}

/// The folder tells of a link that is replaced, the file of data that are written over.
void SystemTimeChanges::watchZoneFile() {
    if (m_zoneFile.isEmpty())
        return;
    const QFileInfo file(m_zoneFile);
    m_files.addPath(file.path());
    if (file.exists())
        m_files.addPath(m_zoneFile);
}

void SystemTimeChanges::lookAtZoneFile() {
    const auto state = zoneFileState();
    if (std::exchange(m_zoneFileState, state) == state)
        return;
    // A watch stays with the file that was there, whatever has taken its place.
    m_files.removePath(m_zoneFile);
    watchZoneFile();
    if (m_handler)
        m_handler();
}

QString SystemTimeChanges::zoneFileState() const {
    const QFileInfo file(m_zoneFile);
    return u"%1 %2 %3"_s.arg(
        file.symLinkTarget(),
        QString::number(file.size()),
        file.lastModified().toString(Qt::ISODateWithMs));
}

} // namespace quorvane
