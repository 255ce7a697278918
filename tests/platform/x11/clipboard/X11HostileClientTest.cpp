// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

#include <x11_clipboard/X11SelectionSave.h>
#include <x11_server/X11Events.h>
#include <x11_server/X11ServerClock.h>

#include <set>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// Other programs whose answers and questions are longer than anybody needs.
class X11HostileClientTest : public PasteboardTest {
protected:
    /// How often the event loop turns from the owner's last answer to the end of the save that has
    /// been started.
    [[nodiscard]] int turnsOfReading() {
        const auto watch = m_connection->subscribe([this](const xcb_generic_event_t& event) {
            if (eventAs<xcb_selection_notify_event_t>(event) != nullptr)
                m_turns = 0;
        });
        countTurns();
        EXPECT_TRUE(waitUntil([this] { return m_saved.has_value(); }));
        return m_turns;
    }

    void countTurns() {
        m_queue.async([this] {
            if (m_saved)
                return;
            ++m_turns;
            countTurns();
        });
    }

    int m_turns = 0;
};

TEST_F(X11HostileClientTest, OwnerIsAskedForTheFirst256OfItsTargets) {
    QStringList names;
    for (int i = 0; i < 400; ++i)
        names.append(u"QUORVANE_TEST_TARGET_%1"_s.arg(i));
    names.prepend(u"UTF8_STRING"_s);
    const auto owner = startOwner({textOffer("text")}, {.names = names, .flood = 300'000});
    EXPECT_EQ(savedItem(), itemOf({textOffer("text")}));
    const auto asked = owner->textsSoFar();
    EXPECT_EQ(asked.size(), 1 + 256);
    EXPECT_EQ(asked.back(), u"QUORVANE_TEST_TARGET_254"_s);
}

TEST_F(X11HostileClientTest, LongPropertyIsReadWhileTheEventLoopTurns) {
    const std::vector<Offer> offers{{{u"huge"_s, noise(16'000'000), u"huge"_s}}};
    const auto owner = startOwner(offers);
    startSave();
    EXPECT_GE(turnsOfReading(), 10) << "it has 16 pieces of a mebibyte";
    EXPECT_TRUE(outcome() == (PasteboardContents{{itemOf(offers)}, std::nullopt}));
}

TEST_F(X11HostileClientTest, WhatIsTooLongIsDroppedAndTheOthersStay) {
    const std::vector<Offer> offers{
        {{u"a"_s, noise(40'000), u"a"_s}},
        {{u"b"_s, noise(80'001), u"b"_s}},
        {{u"c"_s, noise(500'000), u"c"_s}, u"incremental"_s},
        {{u"d"_s, noise(80'000), u"d"_s}},
        {{u"e"_s, noise(4), u"e"_s}},
    };
    const auto owner = startOwner(offers);
    X11SelectionInbox inbox(m_connection, m_queue);
    const X11ServerClock clock(m_connection);
    std::optional<PasteboardItem> saved;
    const X11SelectionSave save(
        inbox,
        m_queue,
        m_connection->atom("CLIPBOARD"),
        clock.now(),
        [&saved](PasteboardItem item) { saved = std::move(item); },
        120'000);
    ASSERT_TRUE(waitUntil([&saved] { return saved.has_value(); }));
    EXPECT_EQ(typesOf(*saved), (QStringList{u"a"_s, u"d"_s}));
}

TEST_F(X11HostileClientTest, EndlessIncrementsEndWithTheLimitOfTheSave) {
    const auto owner = startOwner({{{u"huge"_s, noise(3'000'000), u"huge"_s}, u"incremental"_s}});
    X11SelectionInbox inbox(m_connection, m_queue);
    const X11ServerClock clock(m_connection);
    std::optional<PasteboardItem> saved;
    const X11SelectionSave save(
        inbox,
        m_queue,
        m_connection->atom("CLIPBOARD"),
        clock.now(),
        [&saved](PasteboardItem item) { saved = std::move(item); },
        250'000);
    ASSERT_TRUE(waitUntil([&saved] { return saved.has_value(); }));
    EXPECT_EQ(saved, PasteboardItem{});
    // The rest of it is thrown away, so that its owner comes to its end.
    EXPECT_EQ(savedItem().front().bytes.size(), 3'000'000);
}

TEST_F(X11HostileClientTest, AnswersThatNobodyWantsTakeABoundedNumberOfProperties) {
    X11SelectionInbox inbox(m_connection, m_queue);
    std::set<xcb_atom_t> properties;
    for (int i = 0; i < 500; ++i) {
        const auto property = inbox.lease();
        properties.insert(property);
        inbox.abandon(property);
    }
    EXPECT_EQ(properties.size(), X11SelectionInbox::mostAbandoned + 1);
}

TEST_F(X11HostileClientTest, IncrementsThatNeverEndAreThrownAwayOnlySoOften) {
    X11SelectionInbox inbox(m_connection, m_queue);
    const auto property = inbox.lease();
    inbox.abandon(property);
    const ForeignWindow owner;
    int announced = 0;
    const auto watch = m_connection->subscribe([&](const xcb_generic_event_t& event) {
        const auto* change = eventAs<xcb_property_notify_event_t>(event);
        if (change != nullptr && change->atom == property &&
            change->state == XCB_PROPERTY_NEW_VALUE)
            ++announced;
    });
    const auto send = [&] {
        xcb_change_property(
            owner.connection(),
            XCB_PROP_MODE_REPLACE,
            inbox.window(),
            property,
            XCB_ATOM_STRING,
            8,
            1,
            "x");
    };
    for (int i = 0; i < X11SelectionInbox::mostDiscards; ++i)
        send();
    xcb_flush(owner.connection());
    ASSERT_TRUE(waitUntil([&] { return announced == X11SelectionInbox::mostDiscards; }));
    EXPECT_FALSE(readPropertyValue(*m_connection, inbox.window(), property).has_value());
    send();
    xcb_flush(owner.connection());
    ASSERT_TRUE(waitUntil([&] { return announced > X11SelectionInbox::mostDiscards; }));
    EXPECT_TRUE(readPropertyValue(*m_connection, inbox.window(), property).has_value());
}

TEST_F(X11HostileClientTest, RequestForMoreThan256PairsIsRefused) {
    copy(u"text"_s);
    EXPECT_EQ(readAs(u"crowd"_s, {u"STRING"_s, 256}).toInt(), 256);
    EXPECT_EQ(readAs(u"crowd"_s, {u"STRING"_s, 257}).toInt(), 0);
}

TEST_F(X11HostileClientTest, RequestThatIsLongerThanTheServerTakesDoesNoHarm) {
    copy(u"text"_s);
    // 17.6 MB of pairs; the server takes 16.8 MB in one request.
    EXPECT_EQ(readAs(u"crowd"_s, {u"STRING"_s, 2'200'000}).toInt(), 0);
    EXPECT_EQ(contentsOf().front().bytes, "text"_ba);
    EXPECT_EQ(xcb_connection_has_error(m_connection->xcb()), 0);
}

TEST_F(X11HostileClientTest, PropertyLongerThanTheServerTakesInOneRequestIsNotWritten) {
    const ForeignWindow window;
    const auto longest = longestPropertyValue(*m_connection);
    const auto atom = m_connection->atom("QUORVANE_TEST");
    EXPECT_FALSE(writePropertyValue(
        *m_connection, window.id(), atom, {XCB_ATOM_STRING, 8, QByteArray(longest + 1, 'x')}));
    EXPECT_EQ(xcb_connection_has_error(m_connection->xcb()), 0);
    EXPECT_TRUE(writePropertyValue(
        *m_connection, window.id(), atom, {XCB_ATOM_STRING, 8, QByteArray(longest, 'x')}));
    m_connection->waitForServer();
    EXPECT_EQ(xcb_connection_has_error(m_connection->xcb()), 0);
}

TEST_F(X11HostileClientTest, NumberOfTransfersIsBounded) {
    giveBack({{u"big"_s, noise(300'000), u"big"_s}});
    EXPECT_EQ(readAs(u"crowd"_s, {u"big"_s, 100}).toInt(), 64);
    EXPECT_TRUE(waitUntil([] { return contentsOf().size() == 1; }))
        << "the reader that is gone still counts";
}

TEST_F(X11HostileClientTest, NamesOfAtomsAreKeptInABoundedNumber) {
    std::vector<xcb_atom_t> atoms;
    QStringList names;
    for (int i = 0; i < 1500; ++i)
        names.append(u"QUORVANE_TEST_NAME_%1"_s.arg(i));
    atoms = m_connection->atoms(names);
    EXPECT_EQ(m_connection->atomNames(atoms), names);
    EXPECT_EQ(m_connection->atomNames(atoms), names);
}

} // namespace
} // namespace quorvane
