// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>

namespace quorvane {

/// A desktop's own service behind the portal, with shortcuts or without.
class FakeBackend final : public QDBusVirtualObject {
public:
    enum class Kind { HasShortcuts, HasOther, Hangs };

    /// `desktop` is the end of its name on the bus.
    FakeBackend(QDBusConnection bus, const QString& desktop, Kind kind = Kind::HasShortcuts);
    ~FakeBackend() override;

    FakeBackend(const FakeBackend&) = delete;
    FakeBackend& operator=(const FakeBackend&) = delete;

    [[nodiscard]] bool isAsked() const { return m_isAsked; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusConnection m_bus;
    Kind m_kind;
    bool m_isAsked = false;
};

} // namespace quorvane
