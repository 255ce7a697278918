// SPDX-License-Identifier: MIT
#include "PasteboardFixture.h"

#include <QCoreApplication>

#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace quorvane {

QByteArray PasteboardFixture::pasted(const std::string& type, Kind kind) {
    const int descriptor = m_clipboard.paste(type, kind);
    QByteArray bytes;
    std::array<char, 65'536> piece{};
    for (auto length = readSome(descriptor, piece); length > 0;
         length = readSome(descriptor, piece))
        bytes.append(piece.data(), length);
    ::close(descriptor);
    return bytes;
}

void PasteboardFixture::turnOnce() {
    QCoreApplication::processEvents();
}

qsizetype PasteboardFixture::readSome(int descriptor, std::array<char, 65'536>& piece) {
    ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    ssize_t length = -1;
    EXPECT_TRUE(waitUntil([&] {
        length = ::read(descriptor, piece.data(), piece.size());
        return length >= 0;
    }));
    return static_cast<qsizetype>(length);
}

} // namespace quorvane
