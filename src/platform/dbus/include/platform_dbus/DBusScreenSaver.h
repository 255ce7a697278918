// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

namespace quorvane {

/// A desktop's service for the locked screen, as far as it says whether the screen is locked now.
/// It is never started for that, and one that is gone, silent or absent has locked nothing.
class DBusScreenSaver final : public QObject {
    Q_OBJECT

public:
    /// `name` is the service's and its interface's, "org.freedesktop.ScreenSaver" for one; its
    /// object has the same name as a path.
    DBusScreenSaver(QDBusConnection bus, QString name);
    ~DBusScreenSaver() override;

    /// As the service told last.
    [[nodiscard]] bool isActive() const { return m_isActive; }

private Q_SLOTS:

    void setActive(bool isActive) { m_isActive = isActive; }

    void setOwner(const QString& name, const QString& before, const QString& after);

    void lose() { m_isActive = false; }

private:
    void ask();
    [[nodiscard]] QString path() const;

    QDBusConnection m_bus;
    QString m_name;
    QDBusServiceWatcher m_owners;
    bool m_isActive = false;
};

} // namespace quorvane
