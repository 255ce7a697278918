// SPDX-License-Identifier: MIT
#include <platform_offers/PipeReading.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quorvane {

namespace {

// What a pipe holds unless it is asked for more.
constexpr std::size_t pieceSize = 65'536;

} // namespace

std::unique_ptr<PipeReading>
PipeReading::begin(const std::function<void(int)>& hand, qsizetype mostBytes, Callbacks callbacks) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return nullptr;
    hand(ends[1]);
    ::close(ends[1]);
    return take(ends[0], mostBytes, std::move(callbacks));
}

std::unique_ptr<PipeReading>
PipeReading::take(int descriptor, qsizetype mostBytes, Callbacks callbacks) {
    // Only our own end: many a program that writes does not expect to be told to try again.
    ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    return std::unique_ptr<PipeReading>(
        new PipeReading(descriptor, mostBytes, std::move(callbacks)));
}

PipeReading::PipeReading(int descriptor, qsizetype mostBytes, Callbacks callbacks)
    : m_descriptor(descriptor),
      m_mostBytes(mostBytes),
      m_callbacks(std::move(callbacks)),
      m_notifier(descriptor, QSocketNotifier::Read) {
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { read(); });
}

PipeReading::~PipeReading() {
    m_notifier.setEnabled(false);
    ::close(m_descriptor);
}

void PipeReading::read() {
    std::array<char, pieceSize> piece{};
    const auto length = ::read(m_descriptor, piece.data(), piece.size());
    if (length < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (length < 0 || length > m_mostBytes - m_bytes.size())
        return finish(std::nullopt);
    if (length == 0)
        return finish(std::move(m_bytes));
    m_bytes.add(QByteArrayView(piece.data(), static_cast<qsizetype>(length)));
    forget(piece.data(), static_cast<std::size_t>(length));
    m_callbacks.progress();
}

void PipeReading::finish(std::optional<ForgottenBytes> bytes) {
    m_notifier.setEnabled(false);
    const auto done = std::move(m_callbacks.done);
    done(std::move(bytes));
}

} // namespace quorvane
