// SPDX-License-Identifier: MIT
#include "SettingsBytes.h"
#include "support/ForeignWindow.h"
#include "support/WaitUntil.h"

#include <x11_appearance/X11Appearance.h>
#include <x11_server/X11PropertyValue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using Scheme = DesktopAppearance::Scheme;

/// A settings manager: another client that owns the selection.
class Manager {
public:
    explicit Manager(const QByteArray& settings) {
        set(settings);
        auto* xcb = m_window.connection();
        xcb_set_selection_owner(
            xcb, m_window.id(), m_connection->atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
        waitForServer();
    }

    void set(const QByteArray& settings) {
        const auto property = m_connection->atom("_XSETTINGS_SETTINGS");
        xcb_change_property(
            m_window.connection(),
            XCB_PROP_MODE_REPLACE,
            m_window.id(),
            property,
            property,
            8,
            static_cast<std::uint32_t>(settings.size()),
            settings.constData());
        waitForServer();
    }

private:
    void waitForServer() {
        auto* xcb = m_window.connection();
        const XcbReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    }

    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    ForeignWindow m_window;
};

QByteArray theme(const QByteArray& name) {
    return SettingsBytes(SettingsBytes::Order::LeastSignificantFirst)
        .text("Net/ThemeName", name)
        .bytes();
}

class X11AppearanceTest : public testing::Test {
protected:
    X11Appearance& make() {
        m_appearance = std::make_unique<X11Appearance>(X11Connection::open());
        m_appearance->onChanged([this] { ++changes; });
        return *m_appearance;
    }

    bool becomes(std::optional<Scheme> scheme) {
        return waitUntil([&] { return m_appearance->current().scheme == scheme; });
    }

    int changes = 0;

private:
    std::unique_ptr<X11Appearance> m_appearance;
};

TEST_F(X11AppearanceTest, IsKnownFromTheBeginning) {
    const Manager manager(theme("Adwaita-dark"));
    EXPECT_EQ(make().current().scheme, Scheme::Dark);
    EXPECT_EQ(changes, 0);
}

TEST_F(X11AppearanceTest, NothingIsKnownWithoutAManager) {
    EXPECT_EQ(make().current(), DesktopAppearance());
}

TEST_F(X11AppearanceTest, FollowsItsManager) {
    Manager manager(theme("Adwaita"));
    EXPECT_EQ(make().current().scheme, Scheme::Light);
    manager.set(theme("Adwaita-dark"));
    EXPECT_TRUE(becomes(Scheme::Dark));
    EXPECT_EQ(changes, 1);
    manager.set(theme("Adwaita"));
    EXPECT_TRUE(becomes(Scheme::Light));
}

TEST_F(X11AppearanceTest, TakesAManagerThatComesLater) {
    make();
    Manager manager(theme("Greybird-dark"));
    EXPECT_TRUE(becomes(Scheme::Dark));
    manager.set(theme("Greybird"));
    EXPECT_TRUE(becomes(Scheme::Light));
}

TEST_F(X11AppearanceTest, KeepsWhatAManagerSaidUntilTheNextOneSpeaks) {
    auto first = std::make_unique<Manager>(theme("Adwaita-dark"));
    const auto& appearance = make();
    first.reset();
    Manager second(theme("Adwaita"));
    EXPECT_TRUE(becomes(Scheme::Light));
    EXPECT_EQ(changes, 1) << "nothing flashed in between";
    EXPECT_EQ(appearance.current().scheme, Scheme::Light);
}

TEST_F(X11AppearanceTest, BrokenSettingsChangeNothing) {
    Manager manager(theme("Adwaita-dark"));
    make();
    manager.set("nonsense");
    manager.set(theme("Adwaita-dark").chopped(3));
    manager.set(theme("Adwaita"));
    EXPECT_TRUE(becomes(Scheme::Light));
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace quorvane
