// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QStringList>

namespace quorvane {

/// The server's side of org.freedesktop.Notifications.
class FakeNotificationServer final : public QDBusVirtualObject {
public:
    explicit FakeNotificationServer(QDBusConnection bus);
    ~FakeNotificationServer() override;

    FakeNotificationServer(const FakeNotificationServer&) = delete;
    FakeNotificationServer& operator=(const FakeNotificationServer&) = delete;

    /// Takes the server's name.
    void appear();

    /// From now on takes calls and answers none, until answerAll().
    void hang() { m_hangs = true; }

    /// Answers what it was asked while it hung, and whatever comes.
    void answerAll();

    void invokeAction(uint id, const QString& key);
    void close(uint id);

    /// One of its signals, with whatever arguments.
    void send(const QString& signal, const QVariantList& arguments);

    /// The arguments of each call of Notify, in order.
    [[nodiscard]] const QList<QVariantList>& notifications() const { return m_notifications; }

    /// All calls, answered or not.
    [[nodiscard]] qsizetype calls() const { return m_calls; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    QStringList capabilities;
    uint nextId = 11;

private:
    void answer(const QDBusMessage& call);

    QDBusConnection m_bus;
    bool m_hangs = false;
    qsizetype m_calls = 0;
    QList<QDBusMessage> m_pending;
    QList<QVariantList> m_notifications;
};

} // namespace quorvane
