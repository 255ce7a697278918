// SPDX-License-Identifier: MIT
#include <platform_dbus/BusSocket.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

Environment variables(std::map<std::string, QString> values) {
    return [values](const char* name) -> std::optional<QString> {
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    };
}

std::optional<BusSocket> inAddress(const QString& address) {
    return BusSocket::inAddress(address, variables({{"XDG_RUNTIME_DIR", u"/run/user/7"_s}}));
}

TEST(BusSocketTest, IsTheFirstOneAmongTheAddresses) {
    EXPECT_EQ(inAddress(u"unix:path=/run/bus"_s), (BusSocket{"/run/bus", false}));
    EXPECT_EQ(inAddress(u"unix:guid=00ff,path=/a/b"_s), (BusSocket{"/a/b", false}));
    EXPECT_EQ(inAddress(u"unix:abstract=/tmp/dbus-x,guid=1"_s), (BusSocket{"/tmp/dbus-x", true}));
    EXPECT_EQ(inAddress(u"unix:runtime=yes"_s), (BusSocket{"/run/user/7/bus", false}));
    EXPECT_EQ(inAddress(u"tcp:host=localhost,port=1;unix:path=/c"_s), (BusSocket{"/c", false}));
}

TEST(BusSocketTest, EscapedBytesAreThemselves) {
    EXPECT_EQ(inAddress(u"unix:path=/tmp/a%20b%3d"_s), (BusSocket{"/tmp/a b=", false}));
}

TEST(BusSocketTest, OtherAddressesHaveNone) {
    for (const auto& address :
         {u""_s, u"autolaunch:"_s, u"unixexec:path=/bin/x"_s, u"unix:tmpdir=/tmp"_s, u"nonsense"_s})
        EXPECT_EQ(inAddress(address), std::nullopt) << address.toStdString();
}

TEST(BusSocketTest, SessionsIsTheUsersWhereNoAddressIsGiven) {
    EXPECT_EQ(
        BusSocket::ofSession(variables(
            {{"DBUS_SESSION_BUS_ADDRESS", u"unix:path=/s"_s}, {"XDG_RUNTIME_DIR", u"/r"_s}})),
        (BusSocket{"/s", false}));
    EXPECT_EQ(
        BusSocket::ofSession(variables({{"XDG_RUNTIME_DIR", u"/r"_s}})),
        (BusSocket{"/r/bus", false}));
    EXPECT_EQ(BusSocket::ofSession(variables({})), std::nullopt);
}

} // namespace
} // namespace quorvane
