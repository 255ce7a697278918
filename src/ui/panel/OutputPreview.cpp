// SPDX-License-Identifier: MIT
#include "OutputLayout.h"

#include <controls/ColorContrast.h>
#include <controls/ContextMenu.h>
#include <controls/DevicePixels.h>
#include <controls/OverlayScrollBar.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <panel/OutputPreview.h>

#include <QFontDatabase>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int padding = 10;
constexpr int leastHeight = 38;
constexpr int mostRows = 40;
constexpr int cornerRadius = 8;
constexpr double selectionOpacity = 0.24; // a text field's
constexpr int tabWidth = 8;               // characters
constexpr int hangingIndent = 2;          // characters
constexpr int leastRowsOfScrolling = 5;
constexpr int longestLineInMenu = 320; // points

/// More than the rows that can show; laying this much out takes a fraction of a frame.
constexpr qsizetype firstPart = 4000;
constexpr qsizetype laterPart = 2000;
/// Longer than between two keystrokes, so that typing never waits for what does not show yet.
constexpr Seconds pauseBeforeRest{0.15};

} // namespace

QFont outputFont(const QFont& body) {
    auto font = textFont(body, TextStyle::Callout);
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    return font;
}

OutputPreview::OutputPreview(MainQueue& queue, QWidget* parent)
    : QPlainTextEdit(parent),
      m_queue(queue) {
    auto* document = new QTextDocument(this);
    m_layout = new OutputLayout(document);
    document->setDocumentLayout(m_layout);
    document->setDocumentMargin(padding);
    document->setUndoRedoEnabled(false);
    setDocument(document);
    setAccessibleName(tr("Preview"));
    setFont(outputFont(font()));
    setTabStopDistance(tabWidth * fontMetrics().horizontalAdvance(u' '));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollBar = new OverlayScrollBar(this);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    viewport()->setAutoFillBackground(false);
    adoptColors();
    adoptDirection();
}

void OutputPreview::setOutput(const QString& output) {
    if (output == m_output)
        return;
    m_rest.reset();
    m_pause = {};
    m_output = output;
    m_shown = documentText(output);
    m_shownLength = firstPartLength(m_shown, firstPart);
    // The rows of one line alone need no sign of where it begins.
    m_layout->setHangingIndent(
        m_shown.contains(u'\n') ? hangingIndent * fontMetrics().horizontalAdvance(u' ') : 0);
    setPlainText(m_shown.left(m_shownLength));
    if (m_shownLength < m_shown.size())
        m_pause = m_queue.after(pauseBeforeRest, [this] {
            m_rest.emplace(m_queue, [this] { return showNextPart(); });
        });
    updateGeometry();
}

QSize OutputPreview::sizeHint() const {
    // The height goes by the width that a layout gives, which may not be the present one.
    return {QPlainTextEdit::sizeHint().width(), leastHeight};
}

QSize OutputPreview::minimumSizeHint() const {
    return {0, leastHeight};
}

bool OutputPreview::hasHeightForWidth() const {
    return true;
}

int OutputPreview::heightForWidth(int width) const {
    const int wanted = wantedHeight(width);
    const int least = leastRowsOfScrolling * m_layout->rowHeight() + 2 * padding;
    return std::max(wanted - m_heldBack, std::min(wanted, least));
}

void OutputPreview::holdBack(int height) {
    const int least = leastRowsOfScrolling * m_layout->rowHeight() + 2 * padding;
    m_heldBack = wantedHeight(width()) - height >= least ? height : 0;
}

int OutputPreview::heldBack() const {
    return wantedHeight(width()) - heightForWidth(width());
}

void OutputPreview::setScrollBarShown(bool shown) {
    m_scrollBar->setSuppressed(!shown);
}

FocusOutline OutputPreview::focusOutline() const {
    return {QRectF(rect()), cornerRadius};
}

bool OutputPreview::event(QEvent* event) {
    // Whether anything is selected shows when the key itself comes.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

bool OutputPreview::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        // Between the letters of two rows there is room that belongs to neither for the base class.
        const auto& original = *static_cast<const QMouseEvent*>(event);
        QMouseEvent inRow(
            original.type(),
            middleOfRow(original.position()),
            original.scenePosition(),
            original.globalPosition(),
            original.button(),
            original.buttons(),
            original.modifiers(),
            original.pointingDevice());
        inRow.setTimestamp(original.timestamp());
        const bool handled = QPlainTextEdit::viewportEvent(&inRow);
        event->setAccepted(inRow.isAccepted());
        return handled;
    }
    default:
        return QPlainTextEdit::viewportEvent(event);
    }
}

void OutputPreview::keyPressEvent(QKeyEvent* event) {
    showRest();
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        const auto place = cursorRect().center();
        QContextMenuEvent request(QContextMenuEvent::Keyboard, place, mapToGlobal(place));
        contextMenuEvent(&request);
        return;
    }
    if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection())
        event->ignore();
    else
        QPlainTextEdit::keyPressEvent(event);
}

// Qt would begin to drag what is selected, in an event loop of its own.
void OutputPreview::mousePressEvent(QMouseEvent* event) {
    auto cursor = textCursor();
    const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->button() == Qt::LeftButton && cursor.hasSelection() && !extends) {
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    QPlainTextEdit::mousePressEvent(event);
}

void OutputPreview::contextMenuEvent(QContextMenuEvent* event) {
    showRest();
    auto* menu = createStandardContextMenu();
    if (document()->blockCount() > 1) {
        const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
        const auto place = middleOfRow(event->pos()).toPoint();
        addCopyOfLine(*menu, lineAt(isByKeyboard ? textCursor() : cursorForPosition(place)));
    }
    openContextMenu(*menu, *this, event->globalPos());
}

void OutputPreview::resizeEvent(QResizeEvent* event) {
    m_layout->setWidth(viewport()->width());
    QPlainTextEdit::resizeEvent(event);
}

void OutputPreview::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_adopting)
        adoptColors();
    if (event->type() == QEvent::LayoutDirectionChange)
        adoptDirection();
}

void OutputPreview::paintEvent(QPaintEvent* event) {
    paintSelection();
    QPlainTextEdit::paintEvent(event);
}

QMimeData* OutputPreview::createMimeDataFromSelection() const {
    // The document's own text has spaces for no-break spaces, and line feeds for every separator.
    const auto cursor = textCursor();
    const int start = cursor.selectionStart();
    auto* mime = new QMimeData;
    mime->setText(m_output.mid(start, cursor.selectionEnd() - start));
    return mime;
}

QString OutputPreview::lineAt(const QTextCursor& cursor) const {
    const auto block = cursor.block();
    return m_output.mid(block.position(), block.length() - 1);
}

void OutputPreview::addCopyOfLine(QMenu& menu, const QString& line) {
    auto shown = menu.fontMetrics().elidedText(line, Qt::ElideRight, longestLineInMenu);
    shown.replace(u'&', QStringLiteral("&&"));
    auto* copy = new QAction(tr("Copy “%1”").arg(shown), &menu);
    connect(copy, &QAction::triggered, this, [this, line] { Q_EMIT copyRequested(line); });
    const auto others = menu.actions();
    menu.insertAction(others.value(0), copy);
    menu.insertSeparator(others.value(0));
}

void OutputPreview::adoptColors() {
    const QScopedValueRollback adopting(m_adopting, true);
    const auto surroundings = parentWidget()->palette();
    QPalette own;
    // The selection is painted here, because the base class leaves stripes between the rows.
    own.setColor(QPalette::Highlight, Qt::transparent);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        own.setColor(group, QPalette::HighlightedText, surroundings.color(group, QPalette::Text));
    setPalette(own);
}

// Rows begin at the panel's edge; the order within them is the text's own.
void OutputPreview::adoptDirection() {
    auto option = document()->defaultTextOption();
    option.setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    option.setTextDirection(Qt::LayoutDirectionAuto);
    document()->setDefaultTextOption(option);
}

void OutputPreview::paintSelection() {
    QPainter painter(viewport());
    const auto theme = Theme::of(parentWidget()->palette());
    fillRounded(painter, viewport()->rect(), cornerRadius, theme.subtleFill);
    const auto cursor = textCursor();
    if (!cursor.hasSelection())
        return;
    const auto color = withOpacity(theme.accentText, selectionOpacity);
    painter.translate(contentOffset());
    auto visible = QRectF(viewport()->rect()).translated(-contentOffset());
    for (auto block = firstVisibleBlock(); block.isValid() && visible.bottom() > 0;
         block = block.next()) {
        const double height = blockBoundingRect(block).height();
        painter.fillPath(
            m_layout->area(block, cursor.selectionStart(), cursor.selectionEnd(), visible), color);
        painter.translate(0, height);
        visible.translate(0, -height);
    }
}

QPointF OutputPreview::middleOfRow(QPointF position) const {
    const double top = contentOffset().y();
    const int height = m_layout->rowHeight();
    const double row = std::floor((position.y() - top) / height);
    return {position.x(), top + (row + 0.5) * height};
}

int OutputPreview::wantedHeight(int width) const {
    const int rows = std::min(m_layout->rowCount(width, mostRows), mostRows);
    return std::max(rows * m_layout->rowHeight() + 2 * padding, leastHeight);
}

void OutputPreview::showRest() {
    m_rest.reset();
    m_pause = {};
    while (showNextPart())
        continue;
}

bool OutputPreview::showNextPart() {
    const auto length = nextPartLength(m_shown, m_shownLength, laterPart);
    if (length == 0)
        return false;
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(m_shown.mid(m_shownLength, length));
    m_shownLength += length;
    updateGeometry();
    return m_shownLength < m_shown.size();
}

} // namespace quorvane
