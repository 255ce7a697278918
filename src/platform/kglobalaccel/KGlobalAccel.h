// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// Our one action in the list of shortcuts that KDE's daemon keeps and System Settings shows. Calls
/// are sent in order and answered later, within three seconds or by no answer.
class KGlobalAccel final : public QObject {
    Q_OBJECT

public:
    static constexpr QStringView serviceName = u"org.kde.kglobalaccel";

    /// Whose keys a call means to end with.
    enum class Claim {
        AsStored, ///< those that the daemon has stored for us, if any; else these
        AsAsked   ///< these, if nobody else has them
    };

    /// The keys that the action has, as Qt numbers them: 0 for a sequence of several, or for one
    /// that another action has. None where the daemon does not answer.
    using KeysHandler = std::function<void(const std::optional<QList<int>>&)>;
    using NameHandler = std::function<void(const QString&)>;

    explicit KGlobalAccel(QDBusConnection bus);

    /// `usual` is what System Settings offers to go back to.
    void claim(int key, std::optional<int> usual, Claim claim, KeysHandler answered);

    /// What people call the program that has the key; empty for nobody else, and where nobody
    /// tells.
    void askHolder(int key, NameHandler answered);

    /// The keys remain ours, and go to the application in front from now on.
    void release();

    /// The list no longer has the action.
    void forget();

    /// Whether the end of a press is told, as far as is known.
    [[nodiscard]] bool tellsRelease() const { return m_tellsRelease; }

    [[nodiscard]] bool isKeyDown() const { return m_isKeyDown; }

Q_SIGNALS:
    void pressed();
    void released();
    /// Somebody else has given the action these keys; none for no shortcut.
    void keysChanged(const QList<int>& keys);
    /// The daemon has gone, or has come and knows nothing of us.
    void vanished();
    void appeared();

private Q_SLOTS:
    void hearPressed(const QDBusMessage& message);
    void hearReleased(const QDBusMessage& message);
    void hearKeys(const QDBusMessage& message);
    void changeOwner(const QString& service, const QString& before, const QString& now);

private:
    using Answered = std::function<void(const QDBusMessage&)>;

    void follow(const QString& interface, const QString& signal, const char* slot);
    void call(const QDBusMessage& question, Answered answered);
    void askComponent();
    [[nodiscard]] bool isOurs(const QDBusMessage& message) const;

    QDBusConnection m_bus;
    QDBusServiceWatcher m_owner;
    bool m_knowsComponent = false;
    bool m_tellsRelease = false;
    bool m_isKeyDown = false;
};

} // namespace quorvane
