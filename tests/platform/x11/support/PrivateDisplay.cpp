// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"

#include <csignal>
#include <sys/prctl.h>

namespace quorvane {

using namespace Qt::StringLiterals;

PrivateDisplay::PrivateDisplay(const QStringList& extraArguments) {
    QStringList arguments{
        u"-displayfd"_s,
        u"1"_s,
        u"-screen"_s,
        u"0"_s,
        u"1024x768x24"_s,
        u"-noreset"_s,
        u"-nolisten"_s,
        u"tcp"_s};
    m_server.setStandardErrorFile(QProcess::nullDevice());
    // A test that crashes leaves no server behind.
    m_server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_server.start(u"Xvfb"_s, arguments + extraArguments);
    // The server writes its number once it takes connections.
    while (!m_server.canReadLine()) {
        if (!m_server.waitForReadyRead())
            return;
    }
    m_name = ':' + m_server.readLine().trimmed();
}

PrivateDisplay::~PrivateDisplay() {
    stop();
}

void PrivateDisplay::stop() {
    m_server.terminate();
    m_server.waitForFinished();
}

} // namespace quorvane
