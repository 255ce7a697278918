// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>
#include <platform_dbus/PortalSettings.h>

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

class QDBusMessage;
class QDBusServiceWatcher;
class QDBusVariant;

namespace quorvane {

/// The appearance as org.freedesktop.portal.Settings tells it. A portal that is not there, hangs or
/// answers nonsense changes nothing; one that comes late or starts anew is asked when it comes.
/// What a portal leaves out keeps its last value.
class PortalAppearance final : public QObject, public Appearance {
    Q_OBJECT

public:
    static constexpr QStringView serviceName = u"org.freedesktop.portal.Desktop";
    static constexpr QStringView objectPath = u"/org/freedesktop/portal/desktop";
    static constexpr QStringView interfaceName = u"org.freedesktop.portal.Settings";

    /// After `patience` a question counts as unanswered.
    explicit PortalAppearance(
        QDBusConnection bus, std::chrono::milliseconds patience = std::chrono::seconds(25));
    ~PortalAppearance() override;

    [[nodiscard]] DesktopAppearance current() const override { return m_settings.appearance(); }

    void read() override;

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

private Q_SLOTS:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void follow();
    void ask();
    void adoptReading(const QDBusMessage& reply);
    void note(const QString& nameSpace, const QString& key, const QVariant& value);
    void tellSince(const DesktopAppearance& before) const;

    QDBusConnection m_bus;
    std::chrono::milliseconds m_patience;
    PortalSettings m_settings;
    std::unique_ptr<QDBusServiceWatcher> m_arrivals; ///< once it is followed
    std::function<void()> m_changed;
};

} // namespace quorvane
