// SPDX-License-Identifier: MIT
#include "TerminationSignals.h"

#include <QCoreApplication>
#include <QProcess>
#include <gtest/gtest.h>

#include <array>
#include <csignal>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array endings{SIGTERM, SIGINT, SIGHUP};

bool endsTheProcess(int signal) {
    struct sigaction action {};

    ::sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_DFL;
}

TEST(TerminationSignalsTest, EachIsHandledInTheEventLoop) {
    for (const int signal : endings) {
        int handled = 0;
        const TerminationSignals signals([&] {
            ++handled;
            QCoreApplication::exit();
        });
        ASSERT_EQ(::raise(signal), 0);
        EXPECT_EQ(handled, 0);
        QCoreApplication::exec();
        EXPECT_EQ(handled, 1);
    }
}

TEST(TerminationSignalsTest, EndTheProcessBeforeAndAfter) {
    for (const int signal : endings)
        EXPECT_TRUE(endsTheProcess(signal));
    {
        const TerminationSignals signals([] {});
        for (const int signal : endings)
            EXPECT_FALSE(endsTheProcess(signal));
    }
    for (const int signal : endings)
        EXPECT_TRUE(endsTheProcess(signal));
}

TEST(TerminationSignalsTest, SignalThatWasIgnoredStaysIgnored) {
    std::signal(SIGHUP, SIG_IGN); // as nohup does
    {
        const TerminationSignals signals([] { FAIL() << "handled"; });
        ::raise(SIGHUP);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

TEST(TerminationSignalsTest, StartedProgramsBlockNoSignal) {
    const TerminationSignals signals([] {});
    QProcess child;
    child.start(u"grep"_s, {u"SigBlk"_s, u"/proc/self/status"_s});
    ASSERT_TRUE(child.waitForFinished());
    EXPECT_EQ(child.readAll().simplified(), "SigBlk: 0000000000000000");
}

} // namespace
} // namespace quorvane
