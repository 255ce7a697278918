// SPDX-License-Identifier: MIT
#include "DeliveryNotice.h"

#include "DelegateFixture.h"

#include <support/HeardAnnouncements.h>

#include <QLabel>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const RunningApplication editor{42, u"editor"_s};

const auto told =
    u"Copied instead. There was no window to type into. Paste with your usual keys."_s;

class DeliveryNoticeTest : public DelegateFixture {
protected:
    /// An insertion without a target, until the outcome of its notification is known.
    void copyInstead() {
        launch();
        workspace->setFront(std::nullopt);
        delegate->performInsert();
        queue.advance(3s);
    }

    /// What the panel says at its next showing.
    [[nodiscard]] bool panelSays(const QString& text) {
        if (!isShown(panel()))
            pressShortcut();
        const auto labels = panel()->findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](const QLabel* label) {
            return label->isVisible() && label->text() == text;
        });
    }
};

TEST_F(DeliveryNoticeTest, IsANotificationWhereSomebodyShowsThem) {
    copyInstead();
    EXPECT_TRUE(notifications->shown);
    EXPECT_EQ(statusBar->toolTip, QString());
    EXPECT_FALSE(panelSays(told));
}

TEST_F(DeliveryNoticeTest, IsTheIconsToolTipAndACaptionWhereNobodyDoes) {
    notifications->hasServer = false;
    copyInstead();
    EXPECT_EQ(statusBar->toolTip, told);
    EXPECT_TRUE(panelSays(told));
}

TEST_F(DeliveryNoticeTest, IsAnnouncedOnceWhereNobodyShowsNotifications) {
    notifications->hasServer = false;
    launch();
    HeardAnnouncements heard(*panel());
    workspace->setFront(std::nullopt);
    delegate->performInsert();
    queue.advance(3s);
    EXPECT_EQ(heard.take(), QStringList{told});
    pressShortcut();
    queue.advance(3s);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(DeliveryNoticeTest, StaysUntilSomethingIsChanged) {
    notifications->hasServer = false;
    copyInstead();
    ASSERT_TRUE(panelSays(told));
    pressShortcut();
    ASSERT_TRUE(panelSays(told));
    delegate->model().setIsRange(true);
    EXPECT_FALSE(panelSays(told));
    EXPECT_EQ(statusBar->toolTip, QString());
}

TEST_F(DeliveryNoticeTest, EndsWithTheNextTextThatIsTyped) {
    notifications->hasServer = false;
    copyInstead();
    workspace->setFront(editor);
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_EQ(statusBar->toolTip, QString());
}

class DeliveryNoticeAlone : public testing::Test {
protected:
    VirtualMainQueue m_queue;
    CallLog m_log{m_queue};
    FakeNotifications m_notifications{m_log, m_queue};
    FakeAccessibilityRight m_right{m_log};
    int m_changes = 0;
    std::unique_ptr<DeliveryNotice> m_notice = std::make_unique<DeliveryNotice>(
        DeliveryNotice::Dependencies{m_notifications, m_right},
        DeliveryNotice::Callbacks{
            [this] { ++m_changes; },
            [] {
            }});
};

TEST_F(DeliveryNoticeAlone, OutcomeOfANoticeThatWasClearedChangesNothing) {
    m_notifications.hasServer = false;
    m_notice->tellCopied(CopyReason::NoWindow);
    m_notice->clear();
    m_queue.run();
    EXPECT_EQ(m_notice->text(), QString());
    EXPECT_EQ(m_changes, 0);
}

TEST_F(DeliveryNoticeAlone, OutcomeThatComesAfterItIsGoneChangesNothing) {
    m_notifications.hasServer = false;
    m_notice->tellCopied(CopyReason::NoWindow);
    m_notice.reset();
    m_queue.run();
    EXPECT_EQ(m_changes, 0);
}

} // namespace
} // namespace quorvane
