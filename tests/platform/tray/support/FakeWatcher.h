// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QThread>
#include <QVariant>

#include <mutex>
#include <optional>

namespace quorvane {

/// A watcher of StatusNotifierItems as another program would be: it answers on a thread of its own,
/// also while the one that asks waits.
class FakeWatcher final : public QDBusVirtualObject {
public:
    explicit FakeWatcher(QDBusConnection bus);
    ~FakeWatcher() override;

    FakeWatcher(const FakeWatcher&) = delete;
    FakeWatcher& operator=(const FakeWatcher&) = delete;

    void appear();
    void vanish();

    /// What it says of hosts, to those who wait for an answer too.
    void answer(const QVariant& isHostRegistered);
    void answerWithError();

    /// From now on it takes questions and gives no answer.
    void hang();

    /// Sends StatusNotifierHostRegistered, or whatever the member is.
    void announce(const QString& member);

    [[nodiscard]] qsizetype questions() const;

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void answerPending();
    [[nodiscard]] QDBusMessage answerTo(const QDBusMessage& question) const;

    QDBusConnection m_bus;
    QThread m_thread;
    mutable std::mutex m_mutex;
    qsizetype m_questions = 0;
    QList<QDBusMessage> m_pending;
    std::optional<QVariant> m_answer; ///< none: it hangs; an invalid one: an error
};

} // namespace quorvane
