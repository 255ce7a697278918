// SPDX-License-Identifier: MIT
#include "support/ForeignWriters.h"

#include <csignal>
#include <unistd.h>

namespace quorvane {

ForeignWriters::~ForeignWriters() {
    for (const int descriptor : m_silent)
        ::close(descriptor);
    for (auto& thread : m_threads)
        thread.join();
}

void ForeignWriters::write(int descriptor, const ForeignType& contents) {
    if (contents.answer == ForeignAnswer::Nothing)
        m_silent.push_back(descriptor);
    else
        m_threads.emplace_back([this, descriptor, contents] { serve(descriptor, contents); });
}

/// False where nobody reads any more.
bool ForeignWriters::writeAll(int descriptor, const QByteArray& bytes) {
    for (qsizetype written = 0; written < bytes.size();) {
        const auto length = ::write(
            descriptor,
            bytes.constData() + written,
            static_cast<std::size_t>(bytes.size() - written));
        if (length < 0)
            return false;
        written += static_cast<qsizetype>(length);
        m_written += static_cast<qsizetype>(length);
    }
    return true;
}

void ForeignWriters::serve(int descriptor, const ForeignType& contents) {
    sigset_t brokenPipe;
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
    bool isRead = writeAll(descriptor, contents.bytes);
    while (isRead && contents.answer == ForeignAnswer::Endless)
        isRead = writeAll(descriptor, contents.bytes);
    if (!isRead)
        ++m_brokenPipes;
    ::close(descriptor);
}

} // namespace quorvane
