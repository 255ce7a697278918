// SPDX-License-Identifier: MIT
#include <platform/ForgottenBytes.h>
#include <platform/PasteboardContents.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <optional>
#include <string>
#include <unistd.h>
#include <utility>

namespace quorvane {
namespace {

constexpr std::size_t secretSize = 48;

constexpr char secretAt(std::size_t index) {
    return static_cast<char>(index * index * 37 + 11);
}

/// Behind some other bytes; made at run time, so that it stands nowhere else in the process.
QByteArray makeSecret(QByteArrayView before = {}) {
    QByteArray secret;
    secret.reserve(1000); // not the size of what the look itself needs
    secret.append(before);
    for (std::size_t index = 0; index < secretSize; ++index)
        secret.append(secretAt(index));
    return secret;
}

bool isSecret(const char* bytes) {
    std::size_t same = 0;
    while (same < secretSize && bytes[same] == secretAt(same))
        ++same;
    return same == secretSize;
}

bool hasSecret(const char* bytes, std::size_t size) {
    const char* const end = bytes + size;
    while (static_cast<std::size_t>(end - bytes) >= secretSize) {
        const auto starts = static_cast<std::size_t>(end - bytes) - secretSize + 1;
        const auto* found = static_cast<const char*>(std::memchr(bytes, secretAt(0), starts));
        if (found == nullptr)
            return false;
        if (isSecret(found))
            return true;
        bytes = found + 1;
    }
    return false;
}

/// Whether the part of our own memory has the secret, read piece by piece: the pieces are memory
/// of ours, too.
bool hasSecret(int memory, std::uint64_t begin, std::uint64_t end) {
    std::array<char, 65'536> piece{};
    bool found = false;
    while (!found && begin + secretSize <= end) {
        const auto wanted = std::min<std::uint64_t>(piece.size(), end - begin);
        const auto length = ::pread(memory, piece.data(), wanted, static_cast<off_t>(begin));
        if (length < static_cast<ssize_t>(secretSize))
            break;
        found = hasSecret(piece.data(), static_cast<std::size_t>(length));
        begin += static_cast<std::uint64_t>(length) - secretSize + 1;
    }
    forget(piece.data(), piece.size());
    return found;
}

/// Whether what a core dump would have of the memory that can be written holds the secret.
bool isInMemory() {
    // What sanitizers know of all addresses is larger, and has no bytes of ours.
    constexpr std::uint64_t largest = 1 << 30;
    const int memory = ::open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    std::ifstream maps("/proc/self/maps");
    bool found = false;
    for (std::string line; !found && std::getline(maps, line);) {
        std::size_t afterBegin = 0;
        const auto begin = std::stoull(line, &afterBegin, 16);
        const auto end = std::stoull(line.substr(afterBegin + 1), nullptr, 16);
        if (line.find(" rw") != std::string::npos && end - begin < largest)
            found = hasSecret(memory, begin, end);
    }
    ::close(memory);
    return found;
}

class ForgottenBytesTest : public testing::Test {
protected:
    const QByteArray secret = QByteArray("correct horse battery staple").repeated(3);
};

TEST_F(ForgottenBytesTest, AreWhatTheyAreMadeOf) {
    const ForgottenBytes bytes(secret);
    EXPECT_EQ(bytes, secret);
    EXPECT_EQ(ForgottenBytes(), QByteArray());
}

TEST_F(ForgottenBytesTest, LeaveThoseAloneThatAreHeldElsewhere) {
    std::optional<ForgottenBytes> bytes{secret};
    const ForgottenBytes other = *bytes;
    bytes.reset();
    EXPECT_EQ(other, secret);
    EXPECT_EQ(secret.left(7), "correct");
}

TEST_F(ForgottenBytesTest, GrowByWhatIsAdded) {
    ForgottenBytes bytes;
    for (int time = 0; time < 100; ++time)
        bytes.add(secret);
    EXPECT_EQ(bytes, secret.repeated(100));
    const ForgottenBytes shared = bytes;
    bytes.add("more");
    EXPECT_EQ(bytes, secret.repeated(100) + "more");
    EXPECT_EQ(shared, secret.repeated(100));
}

TEST_F(ForgottenBytesTest, LeaveNothingInMemory) {
    std::optional<ForgottenBytes> bytes{makeSecret()};
    std::optional<PasteboardContents> contents;
    contents.emplace().items.push_back({{QStringLiteral("text/plain"), *bytes, {}, 8}});
    bytes.reset();
    EXPECT_TRUE(isInMemory()) << "somebody still holds it";
    contents.reset();
    EXPECT_FALSE(isInMemory());
}

TEST_F(ForgottenBytesTest, LeaveNothingOfWhatWasRemoved) {
    auto letter = makeSecret("Dear reader");
    letter.truncate(4);
    std::optional<ForgottenBytes> bytes{std::move(letter)};
    bytes.reset();
    EXPECT_FALSE(isInMemory());
}

TEST_F(ForgottenBytesTest, LeaveNothingBehindWhereTheyGrow) {
    ForgottenBytes bytes(makeSecret());
    bytes.add(QByteArray(100'000, 'x'));
    bytes = ForgottenBytes();
    EXPECT_FALSE(isInMemory());
}

} // namespace
} // namespace quorvane
