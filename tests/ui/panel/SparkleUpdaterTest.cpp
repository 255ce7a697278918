// SPDX-License-Identifier: MIT
#include <panel/SparkleUpdater.h>
#include <testing/CallLog.h>
#include <testing/FakeSoftwareCentre.h>

#include <QApplication>
#include <QMessageBox>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class SparkleUpdaterTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeSoftwareCentre softwareCentre{log};

    void checkForUpdates() {
        SparkleUpdater::shared().controller().checkForUpdates(softwareCentre);
    }

    static QList<QMessageBox*> messages() {
        QList<QMessageBox*> shown;
        for (auto* window : QApplication::topLevelWidgets()) {
            auto* message = qobject_cast<QMessageBox*>(window);
            if (message != nullptr && message->isVisible())
                shown.append(message);
        }
        return shown;
    }
};

TEST_F(SparkleUpdaterTest, ASoftwareCentreShowsItsPage) {
    checkForUpdates();
    ASSERT_EQ(log.calls().size(), 1U);
    EXPECT_EQ(log.calls().front().what, "showPage org.quorvane.Quorvane");
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(SparkleUpdaterTest, WithoutOneAMessageSaysWhoUpdatesAndWhichVersionThisIs) {
    softwareCentre.isInstalled = false;
    QCoreApplication::setApplicationVersion(u"4.2"_s);
    checkForUpdates();
    ASSERT_EQ(messages().size(), 1);
    auto* message = messages().front();
    EXPECT_EQ(message->text(), u"Your package manager updates Quorvane."_s);
    EXPECT_EQ(message->informativeText(), u"This is version 4.2."_s);
    message->close();
}

TEST_F(SparkleUpdaterTest, MessageThatShowsIsNotShownTwiceAndComesAgainOnceClosed) {
    softwareCentre.isInstalled = false;
    checkForUpdates();
    checkForUpdates();
    ASSERT_EQ(messages().size(), 1);
    messages().front()->close();
    EXPECT_TRUE(messages().isEmpty());
    checkForUpdates();
    ASSERT_EQ(messages().size(), 1);
    messages().front()->close();
}

} // namespace
} // namespace quorvane
