// SPDX-License-Identifier: MIT
#include "OutputPreviewFixture.h"

namespace quorvane {
namespace {

class OutputPreviewTest : public OutputPreviewFixture {};

TEST_F(OutputPreviewTest, DraggedPartIsCopiedAndTheWindowStays) {
    show(u"2024-03-09 17:05 EST"_s);
    drag(at(11), at(16));
    EXPECT_EQ(copied(), u"17:05"_s);
    EXPECT_EQ(window.presses, 0);
}

TEST_F(OutputPreviewTest, DragFromWhatIsSelectedSelectsAnew) {
    show(u"2024-03-09 17:05 EST"_s);
    drag(at(0), at(20));
    drag(at(11), at(16));
    EXPECT_EQ(copied(), u"17:05"_s);
}

TEST_F(OutputPreviewTest, ClickWithShiftSelectsUpToThere) {
    show(u"2024-03-09 17:05 EST"_s);
    drag(at(11), at(13));
    QTest::mouseClick(preview->viewport(), Qt::LeftButton, Qt::ShiftModifier, at(16));
    EXPECT_EQ(copied(), u"17:05"_s);
}

TEST_F(OutputPreviewTest, DragGoesOverRows) {
    show(u"one\ntwo\nthree"_s);
    drag(at(1), at(10));
    EXPECT_EQ(copied(), u"ne\ntwo\nth"_s);
}

// Small letters leave room between rows; a pointer there belongs to the row around it.

TEST_F(OutputPreviewTest, DoubleClickTakesAWord) {
    show(u"March 9, 2024"_s);
    QTest::mouseDClick(preview->viewport(), Qt::LeftButton, {}, at(2));
    EXPECT_EQ(copied(), u"March"_s);
}

TEST_F(OutputPreviewTest, KeysSelectAndTabLeaves) {
    show(u"17:05 EST"_s);
    preview->setFocus(Qt::TabFocusReason);
    QTest::keyClick(preview, Qt::Key_End);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(preview, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(copied(), u"EST"_s);
    QTest::keyClicks(preview, u"x"_s);
    EXPECT_EQ(preview->toPlainText(), u"17:05 EST"_s);
    QTest::keyClick(preview, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
}

TEST_F(OutputPreviewTest, NeverAsksWhatThereIsToPaste) {
    show(u"noon"_s);
    QGuiApplication::clipboard()->setMimeData(new UnreadableData);
    QTest::mouseClick(preview->viewport(), Qt::MiddleButton);
    QTest::keySequence(preview, QKeySequence::Paste);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {}, window.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(preview->viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const auto* action : menu->actions())
        EXPECT_FALSE(action->text().contains(u"Paste"_s));
    menu->close();
    EXPECT_EQ(preview->toPlainText(), u"noon"_s);
}

TEST_F(OutputPreviewTest, CopyIsTheTextExactly) {
    const QStringList outputs{
        u"17\u202F:05\u00A0h"_s,
        u"one\r\ntwo\rthree\n\nfour"_s,
        u"line\u2028separator\u2029paragraph"_s,
        u"tab\there"_s,
        u"\U0001F600 \u05D0\u05D1 \u0645\u0631\u062D\u0628\u0627"_s,
        QString(u'\ufdd0') + u"noncharacter\ufffc"_s};
    for (const auto& output : outputs) {
        show(output);
        EXPECT_EQ(copiedWhole(), output);
    }
}

TEST_F(OutputPreviewTest, ChangeClearsTheSelectionAndTheSameOutputKeepsIt) {
    show(u"17:05 EST"_s);
    drag(at(0), at(2));
    show(u"17:05 EST"_s);
    EXPECT_EQ(copied(), u"17"_s);
    show(u"17:05 GMT"_s);
    EXPECT_FALSE(preview->textCursor().hasSelection());
}

TEST_F(OutputPreviewTest, RightToLeftTextIsSelectedInItsOwnOrder) {
    const auto hebrew = u"\u05D0\u05D1\u05D2 \u05D3\u05D4"_s;
    show(hebrew);
    EXPECT_GT(at(0).x(), at(3).x());
    drag(at(0), at(3));
    EXPECT_EQ(copied(), hebrew.left(3));
}

TEST_F(OutputPreviewTest, LongOutputShowsItsBeginningAtOnceAndTheRestAfterAPause) {
    for (const auto& output : {QString(100'000, u'm'), u"2024\n"_s.repeated(20'000)}) {
        show(output);
        EXPECT_EQ(preview->height(), 40 * rowHeight + 20);
        EXPECT_LT(preview->document()->characterCount(), 10'000);
        queue.advance(Seconds(0.2));
        EXPECT_EQ(preview->document()->characterCount(), output.size() + 1);
        EXPECT_EQ(preview->toPlainText(), output);
        EXPECT_TRUE(queue.isIdle());
    }
}

TEST_F(OutputPreviewTest, LongOutputIsCopiedWholeBeforeItsRestShows) {
    const auto output = u"2024-03-09\n"_s.repeated(9000);
    show(output);
    EXPECT_EQ(copiedWhole(), output);
    queue.advance(Seconds(0.2));
    EXPECT_EQ(preview->toPlainText(), output);
}

TEST_F(OutputPreviewTest, RestOfAnEarlierOutputNeverFollows) {
    show(QString(50'000, u'm'));
    show(u"short"_s);
    queue.advance(Seconds(1));
    EXPECT_EQ(preview->toPlainText(), u"short"_s);
    show(QString(50'000, u'm'));
    queue.advance(Seconds(0.14));
    show(u"2\n"_s.repeated(9000));
    queue.advance(Seconds(1));
    EXPECT_EQ(preview->toPlainText(), u"2\n"_s.repeated(9000));
}

QImage pictureOf(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

TEST_F(OutputPreviewTest, SelectionHasNoStripesBetweenItsRows) {
    show(u"    \n    \n    "_s); // nothing is drawn: any change of colour is a stripe
    QTest::keySequence(preview, QKeySequence::SelectAll);
    next->setFocus(); // no caret
    const auto picture = pictureOf(*preview);
    const int column = (at(1).x() + at(2).x()) / 2;
    const auto selected = picture.pixel(column, 10);
    EXPECT_NE(selected, picture.pixel(column, 9));
    for (int y = 10; y < 10 + 3 * rowHeight; ++y)
        EXPECT_EQ(picture.pixel(column, y), selected) << y;
    EXPECT_NE(selected, picture.pixel(column, 10 + 3 * rowHeight));
}

TEST_F(OutputPreviewTest, TextIsLightOnDark) {
    window.setPalette(builtInPalette(ColorScheme::Dark));
    show(u"mmmm"_s);
    drag(at(2), at(4));
    next->setFocus();
    const auto picture = pictureOf(*preview);
    const auto brightest = [&](int from, int to) {
        int found = 0;
        for (int x = at(from).x(); x < at(to).x(); ++x)
            for (int y = 10; y < 28; ++y)
                found = std::max(found, qGray(picture.pixel(x, y)));
        return found;
    };
    EXPECT_LT(qGray(picture.pixel(200, 19)), 70);
    EXPECT_GT(brightest(0, 2), 180);
    EXPECT_GT(brightest(2, 4), 180);
}

TEST_F(OutputPreviewTest, ScreenReaderReadsItExactly) {
    show(u"17:05\u00A0EST"_s);
    auto& interface = *QAccessible::queryAccessibleInterface(preview);
    EXPECT_EQ(interface.text(QAccessible::Name), u"Preview"_s);
    EXPECT_EQ(interface.role(), QAccessible::EditableText); // "text" on the accessibility bus
    EXPECT_TRUE(interface.state().readOnly);
    EXPECT_FALSE(interface.state().editable);
    auto* text = interface.textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(0, text->characterCount()), u"17:05\u00A0EST"_s);

    preview->setOutput(u"17:05 GMT"_s);
    EXPECT_EQ(text->text(0, text->characterCount()), u"17:05 GMT"_s);
}

} // namespace
} // namespace quorvane
