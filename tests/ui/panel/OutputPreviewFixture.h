// SPDX-License-Identifier: MIT
#pragma once

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

using namespace Qt::StringLiterals;

inline constexpr int panelWidth = 468;
inline constexpr int rowHeight = 18; // of the output font at a body of 13

/// Counts the presses that a control leaves to the window, which would move by them.
class PreviewWindow : public QWidget {
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

/// The preview above another field, as in the panel.
class OutputPreviewFixture : public testing::Test {
protected:
    VirtualMainQueue queue;
    PreviewWindow window;
    OutputPreview* preview;
    QLineEdit* next;

    OutputPreviewFixture() {
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

} // namespace quorvane
