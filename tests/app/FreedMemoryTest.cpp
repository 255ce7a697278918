// SPDX-License-Identifier: MIT
#include "FreedMemory.h"

#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <unistd.h>
#include <vector>

// The allocators of sanitizers keep what is freed, to find who uses it.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

namespace quorvane {
namespace {

constexpr qint64 mebibyte = 1 << 20;

// proc(5): the second number is of pages in memory.
qint64 resident() {
    QFile file(QStringLiteral("/proc/self/statm"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

// The sizes of messages on the bus; larger ones the allocator has from the system one by one.
constexpr std::size_t messageSize = 50'000;

TEST(FreedMemory, GoesBackToTheSystemWhenTheWindowIsHidden) {
    QWidget window;
    new FreedMemory(&window);
    window.show();
    std::vector<std::unique_ptr<char[]>> messages(1600);
    for (auto& message : messages) {
        message.reset(new char[messageSize]);
        std::memset(message.get(), 1, messageSize);
    }
    for (std::size_t index = 0; index < messages.size(); index += 2)
        messages[index].reset();
    const auto kept = resident();
    window.hide();
    EXPECT_TRUE(QTest::qWaitFor([kept] { return kept - resident() > 30 * mebibyte; }));
}

} // namespace
} // namespace quorvane

#endif
