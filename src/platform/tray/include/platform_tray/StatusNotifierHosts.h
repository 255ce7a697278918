// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPointer>
#include <QString>

#include <chrono>

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace quorvane {

/// Whether somebody on the bus shows StatusNotifierItems, as their watcher tells it
/// (freedesktop.org's Status Notifier Item, section StatusNotifierWatcher).
class StatusNotifierHosts final : public QObject {
    Q_OBJECT

public:
    static constexpr QStringView watcherName = u"org.kde.StatusNotifierWatcher";
    static constexpr QStringView watcherPath = u"/StatusNotifierWatcher";

    enum class Presence {
        Unknown, ///< a watcher is there and does not answer
        Absent,
        Present,
    };

    /// The first answer is waited for, so that a program knows when it starts; at most `patience`.
    /// A later one may take as long as it likes. Without a bus there is never a host.
    explicit StatusNotifierHosts(
        QDBusConnection bus, std::chrono::milliseconds patience = std::chrono::milliseconds(100));

    [[nodiscard]] Presence presence() const { return m_presence; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void ask();

private:
    void follow();
    void askAtOnce(std::chrono::milliseconds patience);
    void adoptOwner(const QString& owner);
    void adopt(const QDBusMessage& answer);
    void setPresence(Presence presence);

    QDBusConnection m_bus;
    Presence m_presence = Presence::Absent;
    QPointer<QDBusPendingCallWatcher> m_question; ///< the last one, until it is answered
};

} // namespace quorvane
