// SPDX-License-Identifier: MIT
#include "OutputPreviewFixture.h"

namespace quorvane {
namespace {

/// Where lines break into rows, and how much height they take.
class OutputPreviewRowsTest : public OutputPreviewFixture {};

TEST_F(OutputPreviewRowsTest, EveryPixelBelongsToARow) {
    show(u"aaaa\nbbbb\ncccc"_s);
    const int column = at(2).x();
    for (int y = 10; y < 10 + 3 * rowHeight; ++y) {
        QTest::mouseClick(preview->viewport(), Qt::LeftButton, {}, {column, y});
        EXPECT_EQ(preview->textCursor().position(), 2 + 5 * ((y - 10) / rowHeight)) << y;
    }
}

TEST_F(OutputPreviewRowsTest, IsAsHighAsItsRows) {
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

TEST_F(OutputPreviewRowsTest, RowsAreEquallyHigh) {
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

TEST_F(OutputPreviewRowsTest, RowsBreakBetweenWords) {
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

TEST_F(OutputPreviewRowsTest, WordThatIsLongerThanARowIsBroken) {
    const double advance = QFontMetricsF(preview->font()).horizontalAdvance(u'm');
    const int perRow = static_cast<int>((panelWidth - 20) / advance);
    show(u"ab "_s + QString(perRow + 3, u'm'));
    const auto rows = rowsOf(*preview);
    EXPECT_EQ(rows.join(QString()), preview->toPlainText());
    ASSERT_GE(rows.size(), 2);
    EXPECT_LE(rows.size(), 3);
}

TEST_F(OutputPreviewRowsTest, FurtherRowsOfALineStandInFromWhereLinesBegin) {
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

TEST_F(OutputPreviewRowsTest, FurtherRowsStandInFromTheMirroredPanelsEdge) {
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

TEST_F(OutputPreviewRowsTest, RowsThatStandInAreSelectedWhereTheyShow) {
    const auto line = u"one two three four five six seven eight nine ten "_s;
    show(line.repeated(2) + u'\n' + line);
    const int second = static_cast<int>(rowsOf(*preview).front().size());
    drag(at(second), at(second + 3));
    EXPECT_EQ(copied(), line.repeated(2).mid(second, 3));
}

TEST_F(OutputPreviewRowsTest, LongLineWrapsAnywhereAndNeverScrollsSideways) {
    const double advance = QFontMetricsF(preview->font()).horizontalAdvance(u'm');
    const int perRow = static_cast<int>((panelWidth - 20) / advance);
    show(QString(qsizetype{3} * perRow, u'm'));
    EXPECT_EQ(preview->height(), 3 * rowHeight + 20);
    EXPECT_EQ(at(0).y() + rowHeight, at(perRow + 1).y());
    EXPECT_EQ(preview->horizontalScrollBar()->maximum(), 0);
    show(QString(qsizetype{3} * perRow + 1, u'm'));
    EXPECT_EQ(preview->height(), 4 * rowHeight + 20);
}

TEST_F(OutputPreviewRowsTest, HeightForAnotherWidthIsKnownBeforeItIsTaken) {
    show(QString(300, u'm'));
    const int narrow = preview->heightForWidth(200);
    window.resize(200, 600);
    window.layout()->activate();
    EXPECT_EQ(preview->heightForWidth(200), narrow);
    EXPECT_GT(narrow, 10 * rowHeight);
}

TEST_F(OutputPreviewRowsTest, TakesTheHeightThatIsLeftOver) {
    show(u"one"_s);
    window.resize(panelWidth, 300);
    window.layout()->activate();
    EXPECT_GT(preview->height(), 200);
}

TEST_F(OutputPreviewRowsTest, ScrollsBeyondFortyRows) {
    show(u"row\n"_s.repeated(40).chopped(1));
    EXPECT_EQ(preview->height(), 40 * rowHeight + 20);
    EXPECT_EQ(preview->verticalScrollBar()->maximum(), 0);
    show(u"row\n"_s.repeated(50).chopped(1));
    EXPECT_EQ(preview->height(), 40 * rowHeight + 20);
    EXPECT_EQ(preview->verticalScrollBar()->maximum(), 10);
}

TEST_F(OutputPreviewRowsTest, RowsBeginAtTheMirroredPanelsEdgeAndKeepTheirOrder) {
    show(u"2024"_s);
    EXPECT_LT(at(0).x(), 20);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(at(4).x(), panelWidth - 20);
    EXPECT_LT(at(0).x(), at(4).x());
}

} // namespace
} // namespace quorvane
