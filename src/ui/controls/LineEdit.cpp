// SPDX-License-Identifier: MIT
#include "LineEditMenu.h"

#include <controls/Announcement.h>
#include <controls/ContextMenu.h>
#include <controls/LineEdit.h>
#include <controls/SilentAccessibility.h>

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>

#include <utility>

namespace quorvane {

namespace {

/// In which keys for pasting that Qt knows take PRIMARY: X11's third, besides Ctrl+V and
/// Shift+Insert.
PasteFrom pastedBy(const QKeyEvent& event) {
    const bool fromSelection = event.key() == Qt::Key_Insert &&
                               event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    return fromSelection ? PasteFrom::Selection : PasteFrom::Clipboard;
}

bool isFromAnotherProgram(const QDropEvent& event) {
    return event.source() == nullptr;
}

} // namespace

LineEdit::LineEdit(PasteReader reader, QWidget* parent)
    : QLineEdit(parent),
      m_reader(std::move(reader)) {
}

void LineEdit::setRefusal(const QString& reason) {
    if (m_refusal == reason)
        return;
    m_refusal = reason;
    setAccessibleDescription(reason);
    announce(*this, reason);
    update();
}

void LineEdit::paste() {
    pasteFrom(PasteFrom::Clipboard);
}

bool LineEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        // Whether anything is selected shows when the key itself comes: keys before it, such as
        // those that select, may still be on their way.
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void LineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste))
        pasteFrom(pastedBy(*event));
    else if (event->matches(QKeySequence::Copy) && !hasSelectedText())
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton)
        return QLineEdit::mouseReleaseEvent(event);
    // The press has put the cursor there.
    deselect();
    pasteFrom(PasteFrom::Selection);
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event) {
    openContextMenu(*makeLineEditMenu(*this), *this, event->globalPos());
}

void LineEdit::dragEnterEvent(QDragEnterEvent* event) {
    if (!isFromAnotherProgram(*event) || isReadOnly() || !event->mimeData()->hasText())
        return QLineEdit::dragEnterEvent(event);
    m_dragged.clear();
    m_dragging = read(PasteFrom::Drag, [this](const QString& text) { m_dragged = text; });
    // Else the field would not hear of the moves, where it says whether it takes the text.
    event->acceptProposedAction();
}

void LineEdit::dragMoveEvent(QDragMoveEvent* event) {
    if (isFromAnotherProgram(*event) && m_dragged.isEmpty())
        event->ignore();
    else
        QLineEdit::dragMoveEvent(event);
}

void LineEdit::dragLeaveEvent(QDragLeaveEvent* event) {
    m_dragging.reset();
    m_dragged.clear();
    QLineEdit::dragLeaveEvent(event);
}

void LineEdit::dropEvent(QDropEvent* event) {
    if (!isFromAnotherProgram(*event))
        return QLineEdit::dropEvent(event);
    m_dragging.reset();
    if (m_dragged.isEmpty())
        return event->ignore();
    QMimeData dropped;
    dropped.setText(std::exchange(m_dragged, {}));
    QDropEvent drop(
        event->position(),
        event->possibleActions(),
        &dropped,
        event->buttons(),
        event->modifiers());
    QLineEdit::dropEvent(&drop);
    event->setDropAction(drop.dropAction());
    event->setAccepted(drop.isAccepted());
}

void LineEdit::hideEvent(QHideEvent* event) {
    m_pasting.reset();
    QLineEdit::hideEvent(event);
}

PasteReading LineEdit::read(PasteFrom from, std::function<void(const QString&)> handler) {
    return m_reader ? m_reader(from, std::move(handler)) : nullptr;
}

LineEdit::Place LineEdit::place() const {
    return {text(), cursorPosition(), selectionStart(), selectionLength()};
}

void LineEdit::pasteFrom(PasteFrom from) {
    if (isReadOnly())
        return;
    m_pasting =
        read(from, [this, asked = place()](const QString& pasted) { insertAt(asked, pasted); });
}

void LineEdit::insertAt(const Place& place, const QString& pasted) {
    if (pasted.isEmpty() || isReadOnly() || text() != place.text)
        return;
    if (place.selectionLength > 0)
        setSelection(place.selectionStart, place.selectionLength);
    else if (hasSelectedText() || cursorPosition() != place.cursor)
        setCursorPosition(place.cursor);
    if (!hasSelectedText())
        beginUndoStep();
    insert(pasted);
    beginUndoStep();
}

// A paste is undone by itself, without what was typed before and after it. QLineEdit begins another
// step only where the cursor is moved: so it is, by one letter and back, and nobody hears of it.
void LineEdit::beginUndoStep() {
    const QSignalBlocker blocker(this);
    const SilentAccessibility silence;
    const int cursor = cursorPosition();
    setCursorPosition(cursor > 0 ? cursor - 1 : 1);
    setCursorPosition(cursor);
}

} // namespace quorvane
