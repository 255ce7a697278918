// SPDX-License-Identifier: MIT
#include <cstring>
#include <wayland_sway/SwayFrames.h>

namespace quorvane {

namespace {

const QByteArray magic = "i3-ipc";
const auto headerSize = magic.size() + 2 * qsizetype{sizeof(std::uint32_t)};

// The tree of some hundred windows has less than one.
constexpr std::uint32_t longestPayload = 16 << 20;

QByteArray bytesOf(std::uint32_t number) {
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

std::uint32_t numberAt(const QByteArray& bytes, qsizetype offset) {
    std::uint32_t number = 0;
    std::memcpy(&number, bytes.constData() + offset, sizeof number);
    return number;
}

} // namespace

QByteArray swayFrame(SwayKind kind, const QByteArray& payload) {
    const auto length = static_cast<std::uint32_t>(payload.size());
    return magic + bytesOf(length) + bytesOf(static_cast<std::uint32_t>(kind)) + payload;
}

void SwayFrames::append(const QByteArray& piece) {
    if (!m_isBroken)
        m_received += piece;
}

std::optional<SwayMessage> SwayFrames::next() {
    if (m_isBroken || m_received.size() < headerSize)
        return std::nullopt;
    const auto length = numberAt(m_received, magic.size());
    if (!m_received.startsWith(magic) || length > longestPayload) {
        m_isBroken = true;
        return std::nullopt;
    }
    const auto end = headerSize + static_cast<qsizetype>(length);
    if (m_received.size() < end)
        return std::nullopt;
    const auto kind = numberAt(m_received, magic.size() + qsizetype{sizeof(std::uint32_t)});
    SwayMessage message{kind, m_received.sliced(headerSize, end - headerSize)};
    m_received.remove(0, end);
    return message;
}

} // namespace quorvane
