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

    void listen(FreedesktopApplication& application) {
        application.setReopenHandler([this] { requests.append(u"reopen"_s); });
        application.setActionHandler([this](const QString& name) { requests.append(name); });
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
