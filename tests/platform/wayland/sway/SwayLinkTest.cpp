// SPDX-License-Identifier: MIT
#include "SwayServer.h"

#include <support/WaitUntil.h>

#include <gtest/gtest.h>

#include <wayland_sway/SwayLink.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class LinkToSway : public testing::Test {
protected:
    SwayServer m_server;
    std::shared_ptr<SwayLink> m_link = SwayLink::open(m_server.path());

    void SetUp() override {
        ASSERT_TRUE(m_link);
        ASSERT_TRUE(m_server.accept());
        EXPECT_EQ(nextKind(), SwayKind::GetWorkspaces);
        EXPECT_EQ(nextKind(), SwayKind::Subscribe);
    }

    SwayKind nextKind() {
        std::optional<SwayMessage> message;
        EXPECT_TRUE(waitUntil([&] {
            message = m_server.next();
            return message.has_value();
        }));
        return static_cast<SwayKind>(message.value_or(SwayMessage{}).kind);
    }
};

TEST(SwayLink, IsNoneWhereNobodyListens) {
    EXPECT_FALSE(SwayLink::open(u"/nonexistent/socket"_s));
    EXPECT_FALSE(SwayLink::open(QString()));
    EXPECT_FALSE(SwayLink::open(QString(200, u'a')));
}

TEST_F(LinkToSway, KnowsTheScreenThatTheUserWorksOn) {
    m_server.send(SwayKind::GetWorkspaces, R"([{"output":"A","focused":true}])");
    EXPECT_TRUE(waitUntil([this] { return m_link->focusedOutput() == u"A"_s; }));
    m_server.send(
        SwayKind::WorkspaceEvent, R"({"change":"focus","current":{"output":"B"},"old":null})");
    EXPECT_TRUE(waitUntil([this] { return m_link->focusedOutput() == u"B"_s; }));
}

TEST_F(LinkToSway, HandsEachTreeToWhoAskedForIt) {
    QList<QByteArray> trees;
    for (int i = 0; i < 2; ++i)
        m_link->askTree([&trees](const QByteArray& tree) { trees.append(tree); });
    EXPECT_EQ(nextKind(), SwayKind::GetTree);
    m_server.send(SwayKind::GetTree, "1");
    // Events come in between.
    m_server.send(SwayKind::WindowEvent, "{}");
    m_server.send(SwayKind::GetTree, "2");
    // One that nobody asked for.
    m_server.send(SwayKind::GetTree, "3");
    EXPECT_TRUE(waitUntil([&trees] { return trees.size() == 2; }));
    EXPECT_EQ(trees, (QList<QByteArray>{"1", "2"}));
}

TEST_F(LinkToSway, EndsWithSway) {
    m_server.stop();
    EXPECT_TRUE(waitUntil([this] { return !m_link->isConnected(); }));
    m_link->command(u"nop"_s);
    m_link->askTree([](const QByteArray&) { FAIL(); });
}

TEST_F(LinkToSway, EndsWhereNothingCanBeUnderstood) {
    m_server.send("HTTP/1.1 400 Bad Request");
    EXPECT_TRUE(waitUntil([this] { return !m_link->isConnected(); }));
}

TEST_F(LinkToSway, GivesUpOnOneThatTakesNothing) {
    const QString command(1 << 16, u'x');
    for (int i = 0; i < 64 && m_link->isConnected(); ++i)
        m_link->command(command);
    EXPECT_FALSE(m_link->isConnected());
}

} // namespace
} // namespace quorvane
