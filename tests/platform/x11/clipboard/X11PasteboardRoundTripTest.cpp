// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

#include <QElapsedTimer>
#include <QProcess>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// What an insertion does to the pasteboard, with other programs at both ends.
class X11PasteboardRoundTripTest : public PasteboardTest {
protected:
    void insertAndRestore() {
        QElapsedTimer clock;
        clock.start();
        const auto item = savedItem();
        RecordProperty("millisecondsToSave", static_cast<int>(clock.elapsed()));
        m_pasteboard.clear();
        pass(u"12:30"_s);
        const auto passing = contentsOf();
        ASSERT_FALSE(passing.empty());
        EXPECT_EQ(passing.front().bytes, "12:30"_ba);
        restore(item);
    }
};

TEST_F(X11PasteboardRoundTripTest, AllKindsOfDataComeBackBitForBit) {
    const std::vector<Offer> offers{
        textOffer("gr\xC3\xBC\xC3\x9F\n"),
        {{u"text/plain;charset=utf-8"_s, "gr\xC3\xBC\xC3\x9F\n"_ba, u"text/plain;charset=utf-8"_s}},
        {{u"STRING"_s, "gr\xFC\xDF\n"_ba, u"STRING"_s}},
        {{u"TEXT"_s, "\x1B%G"_ba, u"COMPOUND_TEXT"_s}},
        {{u"text/html"_s, QByteArray("<\0h\0t\0m\0", 8), u"text/html"_s}},
        {{u"empty"_s, QByteArray(""), u"empty"_s}},
        {{u"empty of 32 bits"_s, QByteArray(""), u"INTEGER"_s, 32}},
        {{u"sixteen"_s, noise(6), u"INTEGER"_s, 16}},
        {{u"thirty-two"_s, noise(40), u"CARDINAL"_s, 32}},
        {{u"atoms"_s, QByteArray("\x04\0\0\0\x1F\0\0\0", 8), u"ATOM"_s, 32}},
        {{u"image/png"_s, noise(6'000'000), u"image/png"_s}, u"incremental"_s},
        {{u"many of 32 bits"_s, noise(700'000), u"INTEGER"_s, 32}, u"incremental"_s},
        {{u"Unusual/name; of=\"a target\""_s, "odd"_ba, u"unusual type"_s}},
        {{u"none in increments"_s, QByteArray(""), u"odd"_s}, u"incremental"_s},
    };
    const auto owner = startOwner(offers);
    ASSERT_EQ(contentsOf(), itemOf(offers)) << "the two foreign programs disagree";
    insertAndRestore();
    EXPECT_EQ(contentsOf(), itemOf(offers));
}

struct GtkCase {
    QString kind;
    QString target; ///< one that has to be among the contents
};

class X11PasteboardGtkTest : public X11PasteboardRoundTripTest,
                             public testing::WithParamInterface<GtkCase> {};

TEST_P(X11PasteboardGtkTest, WhatAGtkProgramOwnsComesBackBitForBit) {
    ForeignProgram owner(u"gtk_owner.py"_s, {{u"kind"_s, GetParam().kind}});
    ASSERT_EQ(owner.nextReport(), u"owned"_s);
    const auto before = contentsOf();
    ASSERT_TRUE(typesOf(before).contains(GetParam().target));
    insertAndRestore();
    EXPECT_EQ(contentsOf(), before);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    X11PasteboardGtkTest,
    testing::Values(GtkCase{u"picture"_s, u"image/png"_s}, GtkCase{u"files"_s, u"text/uri-list"_s}),
    [](const auto& one) { return one.param.kind.toStdString(); });

/// xclip with a large text or picture, which it passes on in increments.
class X11PasteboardXclipTest : public PasteboardTest {
protected:
    static QByteArray run(const QStringList& arguments, const QByteArray& input = {}) {
        QProcess xclip;
        // Its child, which serves the selection, would hold the end of the output open.
        if (!input.isEmpty())
            xclip.setStandardOutputFile(QProcess::nullDevice());
        xclip.start(u"xclip"_s, QStringList{u"-selection"_s, u"clipboard"_s} + arguments);
        xclip.write(input);
        xclip.closeWriteChannel();
        EXPECT_TRUE(waitUntil([&xclip] { return xclip.state() == QProcess::NotRunning; }));
        return xclip.readAllStandardOutput();
    }

    /// xclip's child owns the selection at some time after its parent has ended.
    [[nodiscard]] bool clipboardGetsAnOwner() {
        return waitUntil([this] {
            auto* xcb = m_connection->xcb();
            const XcbReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
                xcb, xcb_get_selection_owner(xcb, m_connection->atom("CLIPBOARD")), nullptr));
            return owner && owner->owner != XCB_WINDOW_NONE;
        });
    }
};

TEST_F(X11PasteboardXclipTest, ReadsALargePictureFromXclip) {
    const auto picture = noise(3'000'000);
    run({u"-i"_s, u"-t"_s, u"image/png"_s}, picture);
    ASSERT_TRUE(clipboardGetsAnOwner());
    // xclip ends before the child that it leaves behind owns the selection.
    ASSERT_TRUE(waitUntil([] { return readAs(u"owned"_s).toBool(); }));
    EXPECT_EQ(savedItem(), (PasteboardItem{{u"image/png"_s, picture, u"image/png"_s}}));
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([] { return !readAs(u"owned"_s).toBool(); }));
}

TEST_F(X11PasteboardXclipTest, GivesALargePictureToXclip) {
    const auto picture = noise(6'000'000);
    giveBack({{u"image/png"_s, picture, u"image/png"_s}});
    EXPECT_EQ(run({u"-o"_s, u"-t"_s, u"image/png"_s}), picture);
}

TEST_F(X11PasteboardXclipTest, GivesTextToXclipByItsDefaultTarget) {
    copy(u"ab\ncd"_s);
    EXPECT_EQ(run({u"-o"_s}), "ab\ncd"_ba);
}

} // namespace
} // namespace quorvane
