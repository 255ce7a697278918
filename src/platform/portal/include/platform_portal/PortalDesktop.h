// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <optional>

namespace quorvane {

/// The desktop portal (XDG Desktop Portal) as one program meets it. What it is asked goes to the
/// process that has its name, and only that one's answers count: any program of the session could
/// send signals that look like the portal's.
class PortalDesktop final : public QObject {
    Q_OBJECT

public:
    /// The properties of an interface; none where nobody offers it.
    using Met = std::function<void(const std::optional<QVariantMap>& properties)>;
    using Answered = std::function<void(const QDBusMessage& answer)>;

    /// After `patience` a question counts as unanswered.
    static constexpr std::chrono::milliseconds patience{10'000};

    /// `bus` is a connection that nothing else asks the portal on: a program has to say who it is
    /// before its first question.
    explicit PortalDesktop(QDBusConnection bus);
    ~PortalDesktop() override;

    [[nodiscard]] QDBusConnection& bus() { return m_bus; }

    /// The portal's unique name on the bus; empty where it is not known, or gone.
    [[nodiscard]] const QString& owner() const { return m_owner; }

    /// Says who we are, once to each process of the portal, and asks what the interface has. Starts
    /// the portal if need be. Dropped when `context` goes.
    void meet(QStringView interface, QObject* context, Met met);

    /// Asks the portal that was met; an answer that does not come is an error. Dropped when
    /// `context` goes.
    void
    ask(const QDBusMessage& question,
        QObject* context,
        Answered answered,
        std::chrono::milliseconds limit = patience);

    /// A method of the portal that was met.
    [[nodiscard]] QDBusMessage question(QStringView interface, QStringView method) const;

    /// Leads a signal of the portal that was met, in sessions of any time, to a slot of `receiver`.
    void follow(QStringView interface, const QString& signal, QObject* receiver, const char* slot);

Q_SIGNALS:
    /// The portal that was met has gone, or given its name away.
    void lost();

    /// A process has taken the portal's name; nobody has met it yet.
    void appeared();

private Q_SLOTS:
    void setOwner(const QString& name, const QString& before, const QString& after);
    void lose();

private:
    void findOwner(QStringView interface, QObject* context, Met met);
    void readProperties(QStringView interface, QObject* context, Met met);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_owners;
    QString m_owner;
};

} // namespace quorvane
