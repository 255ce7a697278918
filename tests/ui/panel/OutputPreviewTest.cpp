// SPDX-License-Identifier: MIT
#include <controls/Theme.h>
#include <panel/OutputPreview.h>
#include <support/UnreadableData.h>
#include <testing/VirtualMainQueue.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr int panelWidth = 468;
constexpr int rowHeight = 18; // of the output font at a body of 13

/// Counts the presses that a control leaves to the window, which would move by them.
class Window : public QWidget {
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

class OutputPreviewTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    Window window;
    OutputPreview* preview;
    QLineEdit* next;

    OutputPreviewTest() {
        window.setPalette(builtInPalette(ColorScheme::Light));
        auto font = window.font();
        font.setPixelSize(13);
        window.setFont(font);
        preview = new OutputPreview(queue, &window);
        next = new QLineEdit(&window);
        auto* column = new QVBoxLayout(&window);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(preview);
        column->addWidget(next);
        window.resize(panelWidth, 200);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QGuiApplication::clipboard()->clear();
    }

    void show(const QString& output) {
        preview->setOutput(output);
        // What the panel does when its content asks for another height.
        window.layout()->activate();
        window.resize(panelWidth, window.layout()->heightForWidth(panelWidth));
        window.layout()->activate();
    }

    /// The point at a character: where a caret before it would be, in the middle of its row.
    QPoint at(int position) {
        QTextCursor cursor(preview->document());
        cursor.setPosition(position);
        return preview->cursorRect(cursor).center();
    }

    void drag(QPoint from, QPoint to) {
        auto* area = preview->viewport();
        QTest::mousePress(area, Qt::LeftButton, {}, from);
        QTest::mouseMove(area, to);
        QTest::mouseRelease(area, Qt::LeftButton, {}, to);
    }

    QString copied() {
        QTest::keySequence(preview, QKeySequence::Copy);
        return QGuiApplication::clipboard()->text();
    }

    QString copiedWhole() {
        QTest::keySequence(preview, QKeySequence::SelectAll);
        return copied();
    }
};

TEST_F(OutputPreviewTest, DraggedPartIsCopiedAndTheWindowStays) {
    show(u"2024-03-09 17:05 EST"_s);
    drag(at(11), at(16));
    EXPECT_EQ(copied(), u"17:05"_s);
    EXPECT_EQ(window.presses, 0);
}

TEST_F(OutputPreviewTest, DragGoesOverRows) {
    show(u"one\ntwo\nthree"_s);
    drag(at(1), at(10));
    EXPECT_EQ(copied(), u"ne\ntwo\nth"_s);
}

// Small letters leave room between rows; a pointer there belongs to the row around it.
TEST_F(OutputPreviewTest, EveryPixelBelongsToARow) {
    show(u"aaaa\nbbbb\ncccc"_s);
    const int column = at(2).x();
    for (int y = 10; y < 10 + 3 * rowHeight; ++y) {
        QTest::mouseClick(preview->viewport(), Qt::LeftButton, {}, {column, y});
        EXPECT_EQ(preview->textCursor().position(), 2 + 5 * ((y - 10) / rowHeight)) << y;
    }
}

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

TEST_F(OutputPreviewTest, IsAsHighAsItsRows) {
    const auto height = [this](const QString& output) {
        show(output);
        return preview->height();
    };
    EXPECT_EQ(height({}), 38);
    EXPECT_EQ(height(u"one"_s), 38);
    EXPECT_EQ(height(u"1\n2\n3\n4"_s), 4 * rowHeight + 20);
    EXPECT_EQ(preview->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(height(u"one"_s), 38);
    EXPECT_EQ(height(u"1\n\n"_s), 3 * rowHeight + 20);
    // Fallback fonts are higher; rows are not.
    EXPECT_EQ(height(u"\u0E17\u0E35\u0E48\n\U0001F600\n\u6F22\u5B57"_s), 3 * rowHeight + 20);
}

TEST_F(OutputPreviewTest, RowsAreEquallyHigh) {
    show(u"a\n\u0645\u0631\u062D\u0628\u0627\nc\nd"_s);
    const auto baseline = [this](int position) {
        const auto block = preview->document()->findBlock(position);
        const auto line = block.layout()->lineAt(0);
        return block.blockNumber() * rowHeight + line.y() + line.ascent();
    };
    EXPECT_EQ(baseline(8) - baseline(0), 2 * rowHeight);
    EXPECT_EQ(at(10).y() - at(8).y(), rowHeight);
}

/// The rows that a text is shown in.
QStringList rowsOf(const QPlainTextEdit& preview) {
    QStringList rows;
    for (auto block = preview.document()->begin(); block.isValid(); block = block.next()) {
        const auto& layout = *block.layout();
        for (int row = 0; row < layout.lineCount(); ++row) {
            const auto line = layout.lineAt(row);
            rows.append(block.text().mid(line.textStart(), line.textLength()));
        }
    }
    return rows;
}

TEST_F(OutputPreviewTest, RowsBreakBetweenWords) {
    const auto output = u"November 20, 2026 at 12:45 PM PST / November 20, 2026 at 3:45 PM EST / "
                        "November 20, 2026 at 8:45 PM GMT+1 / 2026-11-20T20:45:00+00:00"_s;
    const auto words = output.split(u' ');
    for (const int width : {230, 260, 300, 468}) {
        window.resize(width, 400);
        preview->setOutput({});
        preview->setOutput(output);
        window.layout()->activate();
        const auto rows = rowsOf(*preview);
        ASSERT_GT(rows.size(), 1);
        EXPECT_EQ(rows.join(QString()), output);
        for (const auto& row : rows) {
            for (const auto& word : row.trimmed().split(u' '))
                EXPECT_TRUE(words.contains(word)) << word.toStdString() << " at " << width;
        }
    }
}

TEST_F(OutputPreviewTest, WordThatIsLongerThanARowIsBroken) {
    const double advance = QFontMetricsF(preview->font()).horizontalAdvance(u'm');
    const int perRow = static_cast<int>((panelWidth - 20) / advance);
    show(u"ab "_s + QString(perRow + 3, u'm'));
    const auto rows = rowsOf(*preview);
    EXPECT_EQ(rows.join(QString()), preview->toPlainText());
    ASSERT_GE(rows.size(), 2);
    EXPECT_LE(rows.size(), 3);
}

TEST_F(OutputPreviewTest, FurtherRowsOfALineStandInFromWhereLinesBegin) {
    const auto line = u"one two three four five six seven eight nine ten "_s;
    const auto lefts = [this] {
        QList<int> places;
        for (auto block = preview->document()->begin(); block.isValid(); block = block.next()) {
            const auto& layout = *block.layout();
            for (int row = 0; row < layout.lineCount(); ++row)
                places.append(qRound(layout.lineAt(row).naturalTextRect().left()));
        }
        return places;
    };
    const int indent = 2 * preview->fontMetrics().horizontalAdvance(u' ');
    show(line.repeated(2) + u'\n' + line);
    EXPECT_EQ(lefts(), (QList<int>{10, 10 + indent, 10}));
    EXPECT_EQ(preview->height(), 3 * rowHeight + 20);
    show(line.repeated(2));
    EXPECT_EQ(lefts(), (QList<int>{10, 10})) << "there is no other line to tell it from";
}

TEST_F(OutputPreviewTest, FurtherRowsStandInFromTheMirroredPanelsEdge) {
    window.setLayoutDirection(Qt::RightToLeft);
    const auto word = u"\u05D0\u05D1\u05D2 "_s;
    show(word.repeated(30).trimmed() + u'\n' + word);
    const auto& layout = *preview->document()->begin().layout();
    ASSERT_GE(layout.lineCount(), 2);
    const int indent = 2 * preview->fontMetrics().horizontalAdvance(u' ');
    const auto right = [&](int row) {
        const auto line = layout.lineAt(row);
        return line.x() + line.width();
    };
    EXPECT_EQ(right(0), panelWidth - 10);
    EXPECT_EQ(right(1), panelWidth - 10 - indent);
}

TEST_F(OutputPreviewTest, RowsThatStandInAreSelectedWhereTheyShow) {
    const auto line = u"one two three four five six seven eight nine ten "_s;
    show(line.repeated(2) + u'\n' + line);
    const int second = static_cast<int>(rowsOf(*preview).front().size());
    drag(at(second), at(second + 3));
    EXPECT_EQ(copied(), line.repeated(2).mid(second, 3));
}

/// The menu's first command, when the menu is asked for there.
class OutputPreviewMenuTest : public OutputPreviewTest {
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

TEST_F(OutputPreviewTest, LongLineWrapsAnywhereAndNeverScrollsSideways) {
    const double advance = QFontMetricsF(preview->font()).horizontalAdvance(u'm');
    const int perRow = static_cast<int>((panelWidth - 20) / advance);
    show(QString(qsizetype{3} * perRow, u'm'));
    EXPECT_EQ(preview->height(), 3 * rowHeight + 20);
    EXPECT_EQ(at(0).y() + rowHeight, at(perRow + 1).y());
    EXPECT_EQ(preview->horizontalScrollBar()->maximum(), 0);
    show(QString(qsizetype{3} * perRow + 1, u'm'));
    EXPECT_EQ(preview->height(), 4 * rowHeight + 20);
}

TEST_F(OutputPreviewTest, HeightForAnotherWidthIsKnownBeforeItIsTaken) {
    show(QString(300, u'm'));
    const int narrow = preview->heightForWidth(200);
    window.resize(200, 600);
    window.layout()->activate();
    EXPECT_EQ(preview->heightForWidth(200), narrow);
    EXPECT_GT(narrow, 10 * rowHeight);
}

TEST_F(OutputPreviewTest, TakesTheHeightThatIsLeftOver) {
    show(u"one"_s);
    window.resize(panelWidth, 300);
    window.layout()->activate();
    EXPECT_GT(preview->height(), 200);
}

TEST_F(OutputPreviewTest, ScrollsBeyondFortyRows) {
    show(u"row\n"_s.repeated(40).chopped(1));
    EXPECT_EQ(preview->height(), 40 * rowHeight + 20);
    EXPECT_EQ(preview->verticalScrollBar()->maximum(), 0);
    show(u"row\n"_s.repeated(50).chopped(1));
    EXPECT_EQ(preview->height(), 40 * rowHeight + 20);
    EXPECT_EQ(preview->verticalScrollBar()->maximum(), 10);
}

TEST_F(OutputPreviewTest, RightToLeftTextIsSelectedInItsOwnOrder) {
    const auto hebrew = u"\u05D0\u05D1\u05D2 \u05D3\u05D4"_s;
    show(hebrew);
    EXPECT_GT(at(0).x(), at(3).x());
    drag(at(0), at(3));
    EXPECT_EQ(copied(), hebrew.left(3));
}

TEST_F(OutputPreviewTest, RowsBeginAtTheMirroredPanelsEdgeAndKeepTheirOrder) {
    show(u"2024"_s);
    EXPECT_LT(at(0).x(), 20);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(at(4).x(), panelWidth - 20);
    EXPECT_LT(at(0).x(), at(4).x());
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
