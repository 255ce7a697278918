// SPDX-License-Identifier: MIT
#pragma once

#include <controls/FocusShaped.h>
#include <loop/Deadline.h>
#include <loop/SlicedWork.h>

#include <QFont>
#include <QPlainTextEdit>

#include <optional>

class QMenu;

namespace quorvane {

class OutputLayout;
class OverlayScrollBar;

/// The desktop's fixed font in the size of a callout: for output, and for the patterns that it
/// follows.
[[nodiscard]] QFont outputFont(const QFont& body);

/// The output as it will be delivered: selectable, never editable, as tall as its rows up to forty,
/// beyond which it scrolls. Takes what height is left over. Rows break between words, within a word
/// only if it is longer than a row; where there are several lines, each shows where it begins. The
/// menu offers the line under the pointer, or that of the cursor, alone.
class OutputPreview final : public QPlainTextEdit, public FocusShaped {
    Q_OBJECT

public:
    /// The queue must outlive the preview.
    OutputPreview(MainQueue& queue, QWidget* parent);

    /// Another output than the one shown clears the selection. Of a very long one the beginning
    /// shows at once, and the rest when the output has not changed for a moment.
    void setOutput(const QString& output);

    /// Asks for `height` points less than its rows take, and scrolls, as long as some rows remain;
    /// for all of them otherwise. Whoever calls it has it laid out anew.
    void holdBack(int height);

    /// What it asks for less than its rows take in its present width, in points.
    [[nodiscard]] int heldBack() const;

    /// Whether a bar shows while there is something to scroll. It scrolls without one, too.
    void setScrollBarShown(bool shown);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

    [[nodiscard]] FocusOutline focusOutline() const override;

Q_SIGNALS:
    /// The user wants this part of the output on the clipboard.
    void copyRequested(const QString& text);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

private:
    void adoptColors();
    void adoptDirection();
    void paintSelection();
    [[nodiscard]] QPointF middleOfRow(QPointF position) const;
    [[nodiscard]] int wantedHeight(int width) const;
    [[nodiscard]] QString lineAt(const QTextCursor& cursor) const;
    void addCopyOfLine(QMenu& menu, const QString& line);

    void showRest();
    bool showNextPart();

    MainQueue& m_queue;
    OutputLayout* m_layout = nullptr;
    QString m_output;
    QString m_shown; ///< the output as the document takes it, character for character
    qsizetype m_shownLength = 0;
    Deadline m_pause;
    std::optional<SlicedWork> m_rest;
    OverlayScrollBar* m_scrollBar = nullptr;
    int m_heldBack = 0;
    bool m_adopting = false;
};

} // namespace quorvane
