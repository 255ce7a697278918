// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ActivationToken.h>

#include <QDBusAbstractAdaptor>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace quorvane {

/// org.freedesktop.Application, by which a desktop activates a program that runs (Desktop Entry
/// Specification, "D-Bus Activation").
class FreedesktopApplication final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Why this process runs. If the bus started it, its first request is the one that it was
    /// started for: a "toggle" is to show the interface, also where the start has shown it already.
    enum class Start { ByUser, ByBus };

    FreedesktopApplication(Start start, QObject* parent);

    void setReopenHandler(std::function<void(const ActivationToken&)> handler);
    void setActionHandler(std::function<void(const QString&, const ActivationToken&)> handler);

public Q_SLOTS: // the methods of the interface, with its spelling
    // NOLINTBEGIN(readability-identifier-naming)
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(
        const QString& actionName, const QVariantList& parameter, const QVariantMap& platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    /// True at the first request of a process that the bus started.
    [[nodiscard]] bool takeStart();
    void reopen(const QVariantMap& platformData);

    bool m_startPending;
    std::function<void(const ActivationToken&)> m_reopen;
    std::function<void(const QString&, const ActivationToken&)> m_action;
};

} // namespace quorvane
