// SPDX-License-Identifier: MIT
#include <platform_null/NullServices.h>
#include <testing/PasteOutcome.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

class NullServices : public testing::Test {
protected:
    VirtualMainQueue m_queue;
    PlatformServices m_services = makeNullServices(m_queue);
};

TEST_F(NullServices, GrantNothing) {
    m_services.accessibilityRight->prompt();
    EXPECT_FALSE(m_services.accessibilityRight->isTrusted());
    EXPECT_EQ(pasteOutcome(*m_services.keyPoster), PostOutcome::Unavailable);
    EXPECT_FALSE(m_services.accessibilityRight->mayReadShortcut());
    EXPECT_EQ(m_services.accessibilityRight->typing(), TypingRight::Unavailable);
    EXPECT_TRUE(m_services.desktopShortcut->desktopName().isEmpty());
    const auto front = m_services.workspace->frontmostApplication();
    EXPECT_EQ(front.application, std::nullopt);
    EXPECT_FALSE(front.isCertain);
    EXPECT_FALSE(m_services.workspace->activate({1, u"any"_s}));
    EXPECT_EQ(m_services.keyboardLayout->characters(0), std::nullopt);
}

TEST_F(NullServices, ShowNothingOnTheDesktop) {
    EXPECT_EQ(m_services.statusBar->makeStatusItem({}), nullptr);
    EXPECT_FALSE(m_services.softwareCentre->showPage(u"org.quorvane.Quorvane"_s));
}

TEST_F(NullServices, StartNothingAtLogin) {
    EXPECT_FALSE(m_services.autostart->isAvailable());
    m_services.autostart->setOn(true);
    EXPECT_FALSE(m_services.autostart->isOn());
}

TEST_F(NullServices, HaveNobodyWhoShowsNotifications) {
    std::optional<NotificationOutcome> outcome;
    m_services.notifications->show({}, [&](NotificationOutcome told) { outcome = told; });
    EXPECT_FALSE(outcome);
    m_queue.run();
    EXPECT_EQ(outcome, NotificationOutcome::NoServer);
}

TEST_F(NullServices, KnowNothingOfTheAppearance) {
    m_services.appearance->read();
    EXPECT_EQ(m_services.appearance->current(), DesktopAppearance{});
}

TEST_F(NullServices, RefuseATap) {
    const auto result = m_services.eventTaps->createTap({});
    EXPECT_TRUE(std::holds_alternative<TapFailure>(result));
}

TEST_F(NullServices, SaveAnEmptyPasteboardInALaterIteration) {
    std::optional<PasteboardContents> saved;
    EXPECT_EQ(
        m_services.pasteboard->setString(
            QStringLiteral("text"), TextStay::Lasting, PasteSource::Clipboard),
        PutOutcome::Refused);
    m_services.pasteboard->save(
        PasteSource::Clipboard, [&saved](const PasteboardContents& contents) { saved = contents; });
    EXPECT_EQ(saved, std::nullopt);
    m_queue.run();
    EXPECT_EQ(saved, PasteboardContents{});
}

TEST_F(NullServices, HandThePasteboardOverInALaterIteration) {
    bool done = false;
    m_services.pasteboard->handOver([&done] { done = true; });
    EXPECT_FALSE(done);
    m_queue.run();
    EXPECT_TRUE(done);
}

} // namespace

} // namespace quorvane
