// SPDX-License-Identifier: MIT
#include "FakeSharedClipboard.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto object = u"/org/freedesktop/portal/desktop"_s;
const auto interface = u"org.freedesktop.portal.Clipboard"_s;

/// As a program that copies does: it writes in its own time, and never minds who reads.
void writeElsewhere(int descriptor, QByteArray bytes) {
    std::thread([descriptor, bytes = std::move(bytes)] {
        for (qsizetype sent = 0; sent < bytes.size();) {
            const auto written = ::write(
                descriptor,
                bytes.constData() + sent,
                static_cast<std::size_t>(bytes.size() - sent));
            if (written <= 0)
                break;
            sent += written;
        }
        ::close(descriptor);
    }).detach();
}

} // namespace

FakeSharedClipboard::~FakeSharedClipboard() {
    for (const int descriptor : std::as_const(m_open))
        ::close(descriptor);
    for (const int descriptor : std::as_const(m_pastes))
        ::close(descriptor);
}

bool FakeSharedClipboard::handle(const QDBusMessage& message) {
    if (message.interface() != interface)
        return false;
    const auto method = message.member();
    const auto arguments = message.arguments();
    message.setDelayedReply(true);
    if (silentAbout.contains(method))
        return true;
    if (refuses.contains(method))
        return m_bus.send(message.createErrorReply(QDBusError::AccessDenied, u"not today"_s));
    if (method == "SelectionRead"_L1) {
        answerRead(message);
        return true;
    }
    if (method == "SelectionWrite"_L1) {
        answerWrite(message);
        return true;
    }
    if (method == "SetSelection"_L1) {
        ++m_settings;
        m_types = qdbus_cast<QVariantMap>(arguments.at(1)).value(u"mime_types"_s).toStringList();
    }
    if (method == "SelectionWriteDone"_L1)
        m_ends.append({arguments.at(1).toUInt(), arguments.at(2).toBool()});
    return m_bus.send(message.createReply());
}

void FakeSharedClipboard::answerRead(const QDBusMessage& message) {
    const auto type = message.arguments().at(1).toString();
    m_reads.append(type);
    if (givesNoFiles) {
        m_bus.send(message.createReply(u"a text"_s));
        return;
    }
    if (!m_contents.contains(type)) {
        m_bus.send(message.createErrorReply(QDBusError::InvalidArgs, u"no such type"_s));
        return;
    }
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    m_bus.send(message.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(ends[0]))));
    ::close(ends[0]);
    if (leavesPipesOpen)
        m_open.append(ends[1]);
    else
        writeElsewhere(ends[1], m_contents.value(type));
}

void FakeSharedClipboard::answerWrite(const QDBusMessage& message) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    m_bus.send(message.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(ends[1]))));
    ::close(ends[1]);
    m_pastes[message.arguments().at(1).toUInt()] = ends[0];
}

void FakeSharedClipboard::copy(QMap<QString, QByteArray> contents) {
    m_contents = std::move(contents);
    tellOwner(QStringList(m_contents.keys()));
}

void FakeSharedClipboard::tellOwner(const QVariant& types, bool isOurs) {
    send(
        u"SelectionOwnerChanged"_s,
        {QVariantMap{{u"mime_types"_s, types}, {u"session_is_owner"_s, isOurs}}});
}

std::uint32_t FakeSharedClipboard::paste(const QString& type) {
    send(u"SelectionTransfer"_s, {type, ++m_serial});
    return m_serial;
}

std::optional<int> FakeSharedClipboard::pasted(std::uint32_t serial) const {
    const auto found = m_pastes.constFind(serial);
    return found == m_pastes.constEnd() ? std::nullopt : std::optional(*found);
}

void FakeSharedClipboard::stopPasting(std::uint32_t serial) {
    ::close(m_pastes.take(serial));
}

void FakeSharedClipboard::send(const QString& name, const QVariantList& arguments) {
    auto signal = QDBusMessage::createTargetedSignal(client, object, interface, name);
    signal << QVariant::fromValue(QDBusObjectPath(session));
    signal.setArguments(signal.arguments() + arguments);
    EXPECT_TRUE(m_bus.send(signal));
}

} // namespace quorvane
