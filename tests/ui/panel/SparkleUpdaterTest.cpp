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
using Kind = Installation::Kind;

class SparkleUpdaterTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeSoftwareCentre softwareCentre{log};
    Installation installation{Kind::DebianPackage, {}, QDate(2024, 3, 9)};

    QWindow* checkForUpdates() {
        return SparkleUpdater::shared().controller().checkForUpdates(softwareCentre, installation);
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
    EXPECT_EQ(checkForUpdates(), nullptr);
    ASSERT_EQ(log.calls().size(), 1U);
    EXPECT_EQ(log.calls().front().what, "showPage org.quorvane.Quorvane");
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(SparkleUpdaterTest, WithoutOneAMessageSaysWhoUpdatesAndWhichVersionThisIs) {
    softwareCentre.isInstalled = false;
    QCoreApplication::setApplicationVersion(u"4.2"_s);
    const auto* window = checkForUpdates();
    ASSERT_EQ(messages().size(), 1);
    auto* message = messages().front();
    EXPECT_EQ(message->text(), u"Your package manager updates Quorvane."_s);
    EXPECT_EQ(
        message->informativeText(),
        u"This is version 4.2 of 2024-03-09.\nIt was installed as a Debian package."_s);
    EXPECT_EQ(message->windowHandle(), window) << "which wants the focus";
    message->close();
}

TEST_F(SparkleUpdaterTest, WhatNoSoftwareCentreKnowsIsNotLookedForThere) {
    QCoreApplication::setApplicationVersion(u"4.2"_s);
    // The message of an earlier test, which is closed, goes.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto described = [&](Kind kind, const QString& folder) {
        installation.kind = kind;
        installation.folder = folder;
        EXPECT_NE(checkForUpdates(), nullptr);
        auto* message = messages().front();
        const auto text = message->text() + u' ' + message->informativeText();
        message->close();
        QCoreApplication::sendPostedEvents(message, QEvent::DeferredDelete);
        return text;
    };
    EXPECT_EQ(
        described(Kind::ByHand, u"/opt/q"_s),
        u"This Quorvane is updated by hand. This is version 4.2 of 2024-03-09.\nIt was installed "
        "into the folder /opt/q."_s);
    EXPECT_EQ(
        described(Kind::BuildFolder, u"/src/build"_s),
        u"This Quorvane is updated by hand. This is version 4.2 of 2024-03-09.\nIt runs in the "
        "folder /src/build, where it was built."_s);
    EXPECT_TRUE(log.calls().empty());
    softwareCentre.isInstalled = false;
    EXPECT_EQ(
        described(Kind::Flatpak, {}),
        u"Flatpak updates Quorvane. This is version 4.2 of 2024-03-09.\nIt was installed as a "
        "Flatpak."_s);
}

TEST_F(SparkleUpdaterTest, MessageThatShowsIsNotShownTwiceAndComesAgainOnceClosed) {
    softwareCentre.isInstalled = false;
    EXPECT_EQ(checkForUpdates(), checkForUpdates());
    ASSERT_EQ(messages().size(), 1);
    messages().front()->close();
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_NE(checkForUpdates(), nullptr);
    ASSERT_EQ(messages().size(), 1);
    messages().front()->close();
}

} // namespace
} // namespace quorvane
