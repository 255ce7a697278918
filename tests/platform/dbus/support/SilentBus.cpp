// SPDX-License-Identifier: MIT
#include "SilentBus.h"

#include <QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quorvane {

SilentBus::SilentBus(int queueLength)
    : m_descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    std::ranges::copy(socket().path, name.sun_path);
    EXPECT_EQ(::bind(m_descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
    EXPECT_EQ(::listen(m_descriptor, queueLength), 0);
}

SilentBus::~SilentBus() {
    ::close(m_descriptor);
}

BusSocket SilentBus::socket() const {
    return {QFile::encodeName(m_folder.filePath(QStringLiteral("socket"))), false};
}

void SilentBus::hangUp() const {
    ::close(::accept(m_descriptor, nullptr, nullptr));
}

} // namespace quorvane
