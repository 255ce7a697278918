// SPDX-License-Identifier: MIT
#include "SettingsCommand.h"

#include <testing/VirtualMainQueue.h>

#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SettingsCommandTest : public testing::Test {
protected:
    void run(const QString& script) { run(u"sh"_s, {u"-c"_s, script}); }

    void run(const QString& program, const QStringList& arguments) {
        command = std::make_unique<SettingsCommand>(
            queue, program, arguments, [this](std::optional<QByteArray> output) {
                answers.push_back(std::move(output));
                command.reset();
            });
    }

    /// Whether the one answer that comes is this.
    bool isAnswered(const std::optional<QByteArray>& expected) {
        const auto isThere = QTest::qWaitFor([this] {
            queue.run();
            return !answers.empty();
        });
        return isThere && answers == std::vector{expected};
    }

    VirtualMainQueue queue;
    std::vector<std::optional<QByteArray>> answers;
    std::unique_ptr<SettingsCommand> command;
};

TEST_F(SettingsCommandTest, GivesWhatTheProgramWrote) {
    run(u"echo one; echo two; echo no >&2"_s);
    EXPECT_TRUE(isAnswered("one\ntwo\n"));
}

TEST_F(SettingsCommandTest, GivesNothingOfAProgramThatFails) {
    run(u"echo one; exit 1"_s);
    EXPECT_TRUE(isAnswered(std::nullopt));
}

TEST_F(SettingsCommandTest, GivesNothingOfAProgramThatIsNotThere) {
    run(u"/nonexistent/gsettings"_s, {});
    EXPECT_TRUE(isAnswered(std::nullopt));
}

TEST_F(SettingsCommandTest, GivesNothingOfAProgramThatDies) {
    run(u"echo one; kill -9 $$"_s);
    EXPECT_TRUE(isAnswered(std::nullopt));
}

TEST_F(SettingsCommandTest, EndsAProgramThatFloods) {
    run(u"exec yes"_s);
    EXPECT_TRUE(isAnswered(std::nullopt));
}

TEST_F(SettingsCommandTest, EndsAProgramThatDoesNotAnswer) {
    run(u"exec sleep 1000"_s);
    queue.advance(4999ms);
    EXPECT_TRUE(answers.empty());
    queue.advance(1ms);
    EXPECT_TRUE(isAnswered(std::nullopt));
}

TEST_F(SettingsCommandTest, TellsNobodyWhoHasGone) {
    run(u"exec sleep 1000"_s);
    command.reset();
    queue.advance(10s);
    EXPECT_TRUE(answers.empty());
}

} // namespace
} // namespace quorvane
