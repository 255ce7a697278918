// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Notifications.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// Notifications by org.freedesktop.Notifications (Desktop Notifications Specification). A server
/// that hangs costs the user two seconds until the outcome is known, and nothing else; one that
/// comes later shows the next notification.
class DBusNotifications final : public QObject, public Notifications {
    Q_OBJECT

public:
    static constexpr QStringView serviceName = u"org.freedesktop.Notifications";
    static constexpr QStringView objectPath = u"/org/freedesktop/Notifications";
    static constexpr Seconds patience{2};

    /// The queue must outlive the notifications.
    DBusNotifications(QDBusConnection bus, MainQueue& mainQueue);
    ~DBusNotifications() override;

    DBusNotifications(const DBusNotifications&) = delete;
    DBusNotifications& operator=(const DBusNotifications&) = delete;

    void show(Notification notification, Done done) override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString& key, const QDBusMessage& signal);
    void closed(uint id, uint reason, const QDBusMessage& signal);

private:
    struct Request;

    /// What the server shows of ours, or showed last.
    struct Shown {
        QString server; ///< its unique name on the bus
        uint id = 0;
        std::function<void()> perform;
    };

    void follow();
    void send(std::shared_ptr<Request> request);
    [[nodiscard]] bool
    continues(const std::shared_ptr<Request>& request, const QDBusMessage& answer);
    void findServer(const std::shared_ptr<Request>& request);
    void notify(const std::shared_ptr<Request>& request, const QString& server);
    void adopt(
        const std::shared_ptr<Request>& request, const QString& server, const QDBusMessage& answer);
    void sendNext();
    void call(const QDBusMessage& question, std::function<void(const QDBusMessage&)> answered);
    [[nodiscard]] bool isShown(uint id, const QDBusMessage& signal) const;

    QDBusConnection m_bus;
    MainQueue& m_mainQueue;
    bool m_isFollowed = false;
    std::shared_ptr<Request> m_sent; ///< until its server has answered, or the bus gives up
    std::shared_ptr<Request> m_next; ///< waits for that, or for nothing where there is no bus
    std::optional<Shown> m_shown;
};

} // namespace quorvane
