// SPDX-License-Identifier: MIT
#include <settings/JsonDefaultsStore.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// More by ./dev check, which takes a quarter of a minute.
int kills() {
    return qEnvironmentVariableIsSet("QUORVANE_THOROUGH") ? 1000 : 100;
}

/// Has the kernel kill this process, in the middle of whatever it does so long from now.
void beKilledAfter(std::chrono::microseconds span) {
    sigevent killing{};
    killing.sigev_notify = SIGEV_SIGNAL;
    killing.sigev_signo = SIGKILL;
    timer_t timer{};
    itimerspec end{};
    // A timer of zero is one that is off.
    end.it_value.tv_nsec = std::max<long>(1, std::chrono::nanoseconds(span).count());
    if (::timer_create(CLOCK_MONOTONIC, &killing, &timer) != 0 ||
        ::timer_settime(timer, 0, &end, nullptr) != 0)
        ::_exit(EXIT_FAILURE);
}

/// Another process that writes the same two settings over and over, until it is killed.
class KilledWriterTest : public testing::Test {
protected:
    KilledWriterTest() {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(R"({"of another version": [1], "first": -1, "second": -1})");
    }

    [[nodiscard]] QString path() const { return m_folder.filePath(u"defaults.json"_s); }

    [[noreturn]] void writeForEver(std::chrono::microseconds span) {
        ImmediateSettingsWriter writer;
        JsonDefaultsStore settings(path(), writer);
        for (qint64 value = 0;; ++value) {
            settings.setTogether([&] {
                settings.setInteger(u"first"_s, value);
                settings.setInteger(u"second"_s, value);
            });
            if (value == 0)
                beKilledAfter(span);
        }
    }

    /// A writer that is killed so long after its first file.
    void writeUntilKilled(std::chrono::microseconds span) {
        const pid_t writer = ::fork();
        if (writer == 0)
            writeForEver(span);
        int status = 0;
        EXPECT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    }

    [[nodiscard]] QJsonObject stored() const {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return QJsonDocument::fromJson(file.readAll()).object();
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(KilledWriterTest, LeavesTheSettingsWholeWheneverItIsKilled) {
    std::mt19937 random(20240309);
    // About as long as a file takes to be replaced.
    std::uniform_int_distribution<int> microseconds(0, 1500);
    for (int kill = 0; kill < kills(); ++kill) {
        writeUntilKilled(std::chrono::microseconds(microseconds(random)));
        const auto settings = stored();
        ASSERT_EQ(settings[u"of another version"_s], QJsonArray({1})) << kill;
        ASSERT_GE(settings[u"first"_s].toInt(-1), 0) << kill;
        ASSERT_EQ(settings[u"first"_s], settings[u"second"_s]) << kill;
    }
}

} // namespace
} // namespace quorvane
