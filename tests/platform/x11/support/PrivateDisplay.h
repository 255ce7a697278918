// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

namespace quorvane {

/// An X server of the test's own, without a window manager, for as long as this object lives.
class PrivateDisplay {
public:
    explicit PrivateDisplay(const QStringList& extraArguments = {});
    ~PrivateDisplay();

    PrivateDisplay(const PrivateDisplay&) = delete;
    PrivateDisplay& operator=(const PrivateDisplay&) = delete;

    /// For $DISPLAY; empty if the server did not start.
    [[nodiscard]] const QByteArray& name() const { return m_name; }

    void stop();

private:
    QProcess m_server;
    QByteArray m_name;
};

/// $DISPLAY names another server as long as this object lives.
class ScopedDisplayVariable {
public:
    explicit ScopedDisplayVariable(const QByteArray& name) : m_previous(qgetenv("DISPLAY")) {
        qputenv("DISPLAY", name);
    }

    ~ScopedDisplayVariable() { qputenv("DISPLAY", m_previous); }

    ScopedDisplayVariable(const ScopedDisplayVariable&) = delete;
    ScopedDisplayVariable& operator=(const ScopedDisplayVariable&) = delete;

private:
    QByteArray m_previous;
};

} // namespace quorvane
