// SPDX-License-Identifier: MIT
#include "FreedesktopApplication.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Start = FreedesktopApplication::Start;

class FreedesktopApplicationTest : public testing::Test {
protected:
    QObject object;
    QStringList requests;
    ActivationToken token;

    void listen(FreedesktopApplication& application) {
        application.setReopenHandler([this](const ActivationToken& given) {
            requests.append(u"reopen"_s);
            token = given;
        });
        application.setActionHandler([this](const QString& name, const ActivationToken& given) {
            requests.append(name);
            token = given;
        });
    }
};

TEST_F(FreedesktopApplicationTest, RequestsReachTheirHandlers) {
    FreedesktopApplication application(Start::ByUser, &object);
    listen(application);
    application.Activate({});
    application.Open({u"file:///a"_s}, {});
    application.ActivateAction(u"toggle"_s, {}, {});
    application.ActivateAction(u"copy"_s, {}, {});
    EXPECT_EQ(requests, (QStringList{u"reopen"_s, u"reopen"_s, u"toggle"_s, u"copy"_s}));
}

TEST_F(FreedesktopApplicationTest, TokensOfTheDesktopComeWithTheRequests) {
    FreedesktopApplication application(Start::ByUser, &object);
    listen(application);
    const QVariantMap platformData{
        {u"activation-token"_s, u"by wayland"_s}, {u"desktop-startup-id"_s, u"x11_TIME7"_s}};
    application.ActivateAction(u"copy"_s, {}, platformData);
    EXPECT_EQ(token, (ActivationToken{u"by wayland"_s, u"x11_TIME7"_s}));
    application.ActivateAction(u"copy"_s, {}, {});
    EXPECT_TRUE(token.isEmpty());
    application.Activate(platformData);
    EXPECT_EQ(token.token, u"by wayland"_s);
    application.Open({}, {{u"desktop-startup-id"_s, u"id"_s}});
    EXPECT_EQ(token, (ActivationToken{{}, u"id"_s}));
}

TEST_F(FreedesktopApplicationTest, TextsThatNoDesktopGivesAreNoTokens) {
    FreedesktopApplication application(Start::ByUser, &object);
    listen(application);
    for (const auto& value :
         {QVariant(7),
          QVariant(QString(1025, u'a')),
          QVariant(u"a\nb"_s),
          QVariant(QStringList{})}) {
        application.Activate({{u"activation-token"_s, value}, {u"desktop-startup-id"_s, value}});
        EXPECT_TRUE(token.isEmpty());
    }
    application.Activate({{u"activation-token"_s, QString(1024, u'a')}});
    EXPECT_EQ(token.token.size(), 1024);
}

TEST_F(FreedesktopApplicationTest, RequestsWithoutHandlersAreDropped) {
    FreedesktopApplication application(Start::ByUser, &object);
    application.Activate({});
    application.ActivateAction(u"copy"_s, {}, {});
    listen(application);
    EXPECT_EQ(requests, QStringList()) << "none is kept for a later handler";
    application.ActivateAction(u"toggle"_s, {}, {});
    EXPECT_EQ(requests, QStringList(u"toggle"_s));
    application.setReopenHandler({});
    application.setActionHandler({});
    application.Activate({});
    application.ActivateAction(u"copy"_s, {}, {});
    EXPECT_EQ(requests, QStringList(u"toggle"_s));
}

TEST_F(FreedesktopApplicationTest, StartWithoutHandlersIsAStartAllTheSame) {
    FreedesktopApplication application(Start::ByBus, &object);
    application.ActivateAction(u"toggle"_s, {}, {});
    listen(application);
    application.ActivateAction(u"toggle"_s, {}, {});
    EXPECT_EQ(requests, QStringList(u"toggle"_s)) << "only the first request is the start's";
}

TEST_F(FreedesktopApplicationTest, StartForToggleShowsInsteadOfHiding) {
    FreedesktopApplication application(Start::ByBus, &object);
    listen(application);
    application.ActivateAction(u"toggle"_s, {}, {});
    application.ActivateAction(u"toggle"_s, {}, {});
    EXPECT_EQ(requests, (QStringList{u"reopen"_s, u"toggle"_s}));
}

TEST_F(FreedesktopApplicationTest, StartForAnythingElseLeavesTheNextToggleAlone) {
    FreedesktopApplication application(Start::ByBus, &object);
    listen(application);
    application.Activate({});
    application.ActivateAction(u"toggle"_s, {}, {});
    EXPECT_EQ(requests, (QStringList{u"reopen"_s, u"toggle"_s}));
}

TEST_F(FreedesktopApplicationTest, StartForAnotherActionCarriesItOut) {
    FreedesktopApplication application(Start::ByBus, &object);
    listen(application);
    application.ActivateAction(u"copy"_s, {}, {});
    EXPECT_EQ(requests, QStringList{u"copy"_s});
}

} // namespace
} // namespace quorvane
