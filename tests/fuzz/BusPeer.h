// SPDX-License-Identifier: MIT
#pragma once

#include "FreedesktopApplication.h"
#include "KGlobalAccel.h"

#include <platform_dbus/PortalAppearance.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QObject>
#include <QTemporaryDir>

#include <array>
#include <deque>
#include <optional>

namespace quorvane {

/// What listens to the bus in our program, connected to a peer that says what a target makes up. No
/// daemon stands between them.
class BusPeer final : public QDBusVirtualObject {
    Q_OBJECT

public:
    BusPeer();

    /// Has our program ask one of its questions.
    void provoke(int question);

    /// The peer answers the next question with these.
    void answerWith(const QVariantList& arguments) { m_answers.push_back(arguments); }

    /// The peer sends one of the signals and calls that our program knows.
    void send(std::uint8_t kind, const QVariantList& arguments);

    /// Returns when everything that was sent has been handled, and the answers to it, too.
    void settle();

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

public Q_SLOTS:
    void hearAnything(const QDBusMessage& message);

private:
    void settleOnce();

    QTemporaryDir m_folder;
    QDBusServer m_server;
    std::optional<QDBusConnection> m_theirs;
    QDBusConnection m_ours;
    PortalAppearance m_appearance;
    KGlobalAccel m_shortcuts;
    QObject m_object;
    FreedesktopApplication m_application;
    std::deque<QVariantList> m_answers;
};

} // namespace quorvane
