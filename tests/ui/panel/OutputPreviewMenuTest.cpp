// SPDX-License-Identifier: MIT
#include "OutputPreviewFixture.h"

namespace quorvane {
namespace {

/// The menu's first command, when the menu is asked for there.
class OutputPreviewMenuTest : public OutputPreviewFixture {
protected:
    QStringList requested;

    OutputPreviewMenuTest() {
        QObject::connect(preview, &OutputPreview::copyRequested, [this](const QString& text) {
            requested.append(text);
        });
    }

    static QMenu& menu() { return *qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    void click(QPoint place) {
        QContextMenuEvent event(
            QContextMenuEvent::Mouse, place, preview->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(preview->viewport(), &event);
    }

    static QStringList commands() {
        QStringList texts;
        for (const auto* action : menu().actions()) {
            if (!action->isSeparator())
                texts.append(action->text().section(u'\t', 0, 0).remove(u'&'));
        }
        return texts;
    }
};

TEST_F(OutputPreviewMenuTest, LineUnderThePointerIsOfferedAlone) {
    show(u"one\ntwo & three\nfour"_s);
    click(at(6));
    EXPECT_EQ(commands(), (QStringList{u"Copy “two  three”"_s, u"Copy"_s, u"Select All"_s}));
    menu().actions().front()->trigger();
    EXPECT_EQ(requested, QStringList{u"two & three"_s});
    menu().close();
    click({at(0).x(), 10 + 2 * rowHeight + 1});
    menu().actions().front()->trigger();
    EXPECT_EQ(requested.back(), u"four"_s);
    menu().close();
}

TEST_F(OutputPreviewMenuTest, KeysChooseTheLineOfTheCursor) {
    show(u"one\ntwo\nthree"_s);
    preview->setFocus(Qt::TabFocusReason);
    QTest::keyClick(preview, Qt::Key_Down);
    QTest::keyClick(preview, Qt::Key_F10, Qt::ShiftModifier);
    QTest::keyClick(&menu(), Qt::Key_Down);
    QTest::keyClick(&menu(), Qt::Key_Return);
    EXPECT_EQ(requested, QStringList{u"two"_s});
    QTest::keyClick(preview, Qt::Key_Down);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1}, window.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(preview, &event);
    menu().actions().front()->trigger();
    EXPECT_EQ(requested.back(), u"three"_s);
    menu().close();
}

TEST_F(OutputPreviewMenuTest, ClosesWithTheWindow) {
    show(u"one\ntwo"_s);
    click(at(0));
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    window.hide();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(OutputPreviewMenuTest, LineIsTheTextExactly) {
    show(u"one\n17\u202F:05\u00A0h\nthree"_s);
    click(at(5));
    menu().actions().front()->trigger();
    EXPECT_EQ(requested, QStringList{u"17\u202F:05\u00A0h"_s});
    menu().close();
}

TEST_F(OutputPreviewMenuTest, LongLineIsShortenedInTheMenuAlone) {
    const auto longLine = u"long "_s.repeated(100);
    show(longLine + u"\ntwo"_s);
    click(at(2));
    EXPECT_LT(commands().front().size(), 100);
    menu().actions().front()->trigger();
    EXPECT_EQ(requested, QStringList{longLine});
    menu().close();
}

TEST_F(OutputPreviewMenuTest, OnlyLineIsNotOfferedApart) {
    show(u"one"_s);
    click(at(1));
    EXPECT_EQ(commands(), (QStringList{u"Copy"_s, u"Select All"_s}));
    menu().close();
}

} // namespace
} // namespace quorvane
