// SPDX-License-Identifier: MIT
#include <platform_offers/PipeWriting.h>

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quorvane {

namespace {

// The event loop turns in between.
constexpr qsizetype pieceSize = 262'144;

/// As write(2), but for a pipe that nobody reads any more the signal that would end us is taken
/// away: it comes for this thread alone, while it writes.
ssize_t writeWithoutSignal(int descriptor, const char* bytes, qsizetype size) {
    sigset_t brokenPipe;
    sigset_t before;
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &brokenPipe, &before);
    const auto written = ::write(descriptor, bytes, static_cast<std::size_t>(size));
    const int error = errno;
    if (written < 0 && error == EPIPE) {
        const timespec atOnce{};
        ::sigtimedwait(&brokenPipe, nullptr, &atOnce);
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = error;
    return written;
}

} // namespace

struct PipeWriting::Transfer {
    Transfer(int file, ForgottenBytes contents, Ended handler)
        : descriptor(file),
          bytes(std::move(contents)),
          ended(std::move(handler)),
          notifier(file, QSocketNotifier::Write) {}

    ~Transfer() {
        notifier.setEnabled(false);
        ::close(descriptor);
    }

    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    int descriptor;
    ForgottenBytes bytes;
    Ended ended;
    qsizetype written = 0;
    QSocketNotifier notifier;
    Deadline silence;
};

PipeWriting::PipeWriting(MainQueue& queue) : m_queue(queue) {
}

PipeWriting::~PipeWriting() = default;

void PipeWriting::write(int descriptor, const ForgottenBytes& bytes, Ended ended) {
    if (bytes.isEmpty() || m_transfers.size() >= mostTransfers) {
        ::close(descriptor);
        return ended(bytes.isEmpty());
    }
    const int flags = ::fcntl(descriptor, F_GETFL);
    ::fcntl(descriptor, F_SETFL, flags | O_NONBLOCK);
    const auto place = m_transfers.insert(
        m_transfers.end(), std::make_unique<Transfer>(descriptor, bytes, std::move(ended)));
    auto& notifier = (*place)->notifier;
    QObject::connect(
        &notifier, &QSocketNotifier::activated, &notifier, [this, place] { proceed(place); });
    awaitProgress(place);
}

void PipeWriting::proceed(Place place) {
    auto& transfer = **place;
    const auto size = std::min(pieceSize, transfer.bytes.size() - transfer.written);
    const auto written = writeWithoutSignal(
        transfer.descriptor, transfer.bytes.constData() + transfer.written, size);
    if (written < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (written > 0)
        transfer.written += static_cast<qsizetype>(written);
    const bool isWhole = transfer.written == transfer.bytes.size();
    if (written <= 0 || isWhole)
        end(place, isWhole);
    else
        awaitProgress(place);
}

void PipeWriting::awaitProgress(Place place) {
    (*place)->silence = m_queue.after(longestSilence, [this, place] { end(place, false); });
}

void PipeWriting::end(Place place, bool isWhole) {
    const auto ended = std::move((*place)->ended);
    m_transfers.erase(place);
    ended(isWhole);
    // The handler may replace itself.
    const auto onIdle = m_onIdle;
    if (m_transfers.empty())
        onIdle();
}

} // namespace quorvane
