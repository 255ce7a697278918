// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/MainQueue.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <functional>

namespace quorvane {

/// GNOME's daemon of media keys, which runs what the user's own shortcuts name, and one entry of
/// its settings, whose changes dconf tells: it keeps them.
class MediaKeysDaemon final : public QObject {
    Q_OBJECT

public:
    /// What is written to the settings in a row is told once, this long after the first of it.
    static constexpr Seconds writingDelay{0.1};

    /// The entry under `path`. The queue must outlive it.
    MediaKeysDaemon(const QDBusConnection& bus, MainQueue& queue, QString path);

    /// Whether it is on the bus; false until the bus has answered.
    [[nodiscard]] bool isThere() const { return m_isThere; }

    /// Told when the daemon comes or goes.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

    /// Told when the entry, or what it stands in, has been written.
    void onWritten(std::function<void()> handler) { m_written = std::move(handler); }

private Q_SLOTS:
    void handleOwner(const QString& name, const QString& oldOwner, const QString& newOwner);
    void handleNotice(const QDBusMessage& signal);

private:
    void follow(QDBusConnection bus);
    void ask(const QDBusConnection& bus);
    void setThere(bool isThere);
    void tellWritten();

    MainQueue& m_queue;
    QString m_path;
    bool m_isThere = false;
    bool m_isToldSoon = false;
    Deadline m_toldSoon;
    std::function<void()> m_changed;
    std::function<void()> m_written;
};

} // namespace quorvane
