// SPDX-License-Identifier: MIT
#include <settings/JsonDefaultsStore.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <random>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// More by ./dev check, which takes a quarter of a minute.
int kills() {
    return qEnvironmentVariableIsSet("QUORVANE_THOROUGH") ? 1000 : 100;
}

/// What two processes know of each other.
class SharedSignal {
public:
    SharedSignal()
        : m_semaphore(static_cast<sem_t*>(::mmap(
              nullptr, sizeof(sem_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
        ::sem_init(m_semaphore, 1, 0);
    }

    ~SharedSignal() { ::munmap(m_semaphore, sizeof(sem_t)); }

    SharedSignal(const SharedSignal&) = delete;
    SharedSignal& operator=(const SharedSignal&) = delete;

    void give() { ::sem_post(m_semaphore); }

    void take() { ::sem_wait(m_semaphore); }

private:
    sem_t* m_semaphore;
};

/// Another process that writes the same two settings over and over, until it is killed.
class KilledWriterTest : public testing::Test {
protected:
    KilledWriterTest() {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(R"({"of another version": [1], "first": -1, "second": -1})");
    }

    [[nodiscard]] QString path() const { return m_folder.filePath(u"defaults.json"_s); }

    [[noreturn]] void writeForEver(SharedSignal& hasBegun) {
        ImmediateSettingsWriter writer;
        JsonDefaultsStore settings(path(), writer);
        for (qint64 value = 0;; ++value) {
            settings.setTogether([&] {
                settings.setInteger(u"first"_s, value);
                settings.setInteger(u"second"_s, value);
            });
            if (value == 0)
                hasBegun.give();
        }
    }

    /// In the middle of whatever it does so long after its first file.
    void killAfter(std::chrono::microseconds span) {
        SharedSignal hasBegun;
        const pid_t writer = ::fork();
        if (writer == 0)
            writeForEver(hasBegun);
        hasBegun.take();
        std::this_thread::sleep_for(span);
        ::kill(writer, SIGKILL);
        int status = 0;
        EXPECT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_TRUE(WIFSIGNALED(status));
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
        killAfter(std::chrono::microseconds(microseconds(random)));
        const auto settings = stored();
        ASSERT_EQ(settings[u"of another version"_s], QJsonArray({1})) << kill;
        ASSERT_GE(settings[u"first"_s].toInt(-1), 0) << kill;
        ASSERT_EQ(settings[u"first"_s], settings[u"second"_s]) << kill;
    }
}

} // namespace
} // namespace quorvane
