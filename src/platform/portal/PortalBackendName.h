// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace quorvane {

/// What people call the desktop that the portal's questions come from. The portal does not tell,
/// but hands them on to a service that each desktop has on the bus, under a name of its own.
class PortalBackendName final : public QObject {
public:
    /// `interface` is the portal's for what is asked, as the desktops' services have it.
    PortalBackendName(QDBusConnection bus, QString interface);

    /// Asks the bus, and those that run; `found` is called once each time. Another call drops what
    /// is not answered yet.
    void look(std::function<void()> found);

    /// As it was found last; empty where nobody has the interface, several have, or it is none that
    /// we know by name.
    [[nodiscard]] const QString& name() const { return m_name; }

private:
    using Answered = std::function<void(const QDBusMessage& answer)>;

    void meet(const QStringList& namesOnTheBus);
    void count(const QString& name, const QDBusMessage& answer);
    void settle();
    void ask(const QDBusMessage& question, Answered answered);

    QDBusConnection m_bus;
    QString m_interface;
    QString m_name;
    std::function<void()> m_found;
    QStringList m_having; ///< of those that have answered
    int m_unanswered = 0;
    int m_looks = 0;
};

} // namespace quorvane
