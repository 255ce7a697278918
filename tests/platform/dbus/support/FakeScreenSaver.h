// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariant>

namespace quorvane {

/// A desktop's service that locks the screen.
class FakeScreenSaver final : public QDBusVirtualObject {
public:
    explicit FakeScreenSaver(QDBusConnection bus);
    ~FakeScreenSaver() override;

    FakeScreenSaver(const FakeScreenSaver&) = delete;
    FakeScreenSaver& operator=(const FakeScreenSaver&) = delete;

    void appear();
    void vanish();

    /// Tells it everybody.
    void tell(const QVariant& isActive) const;

    /// How often it was asked.
    [[nodiscard]] int questions() const { return m_questions; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    QVariant answer = false; ///< to whoever asks

private:
    QDBusConnection m_bus;
    int m_questions = 0;
};

} // namespace quorvane
