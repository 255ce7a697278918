// SPDX-License-Identifier: MIT
#include "ZoneRowDelegate.h"

#include <controls/OverlayScrollBar.h>
#include <controls/SilentAccessibility.h>
#include <picker/ZoneList.h>
#include <picker/ZoneListModel.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int verticalPadding = 4;

bool writesText(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return modifiers == Qt::NoModifier && !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace

ZoneList::ZoneList(QWidget* parent) : QListView(parent) {
    setItemDelegate(new ZoneRowDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setViewportMargins(0, verticalPadding, 0, 0);
    viewport()->setAutoFillBackground(false);
    setAccessibleName(tr("Time Zones"));
    new OverlayScrollBar(this);
}

bool ZoneList::moveByKey(int key) {
    const auto move = [this](CursorAction action) {
        if (const auto next = moveCursor(action, Qt::NoModifier); next.isValid())
            setCurrentIndex(next);
        return true;
    };
    switch (key) {
    case Qt::Key_Up:
        return move(MoveUp);
    case Qt::Key_Down:
        return move(MoveDown);
    case Qt::Key_PageUp:
        return move(MovePageUp);
    case Qt::Key_PageDown:
        return move(MovePageDown);
    default:
        return false;
    }
}

bool ZoneList::isPressed(const QModelIndex& index) const {
    return m_pressed.isValid() && m_pressed == index;
}

void ZoneList::goToFirst() {
    const SilentAccessibility silence;
    scrollToTop();
    for (int row = 0; row < model()->rowCount(); ++row) {
        const auto index = model()->index(row, 0);
        if (!index.data(ZoneListModel::IsHeadRole).toBool()) {
            setCurrentIndex(index);
            scrollToTop();
            return;
        }
    }
}

void ZoneList::goToTop() {
    setCurrentIndex({});
    scrollToTop();
}

void ZoneList::goBackTo(int scrolled, std::optional<int> row) {
    // Rows that have just changed have no places, and the scroll bar no range, before that.
    executeDelayedItemsLayout();
    const int last = model()->rowCount() - 1;
    setCurrentIndex(row ? model()->index(std::min(*row, last), 0) : QModelIndex());
    verticalScrollBar()->setValue(scrolled);
}

void ZoneList::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((isReturn || event->key() == Qt::Key_Space) && event->modifiers() == Qt::NoModifier)
        Q_EMIT chosen(currentIndex());
    else if (writesText(*event))
        Q_EMIT typed(event);
    else if (event->matches(QKeySequence::Cancel))
        event->ignore();
    else
        QListView::keyPressEvent(event);
}

void ZoneList::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        moveByKey(Qt::Key_Down);
}

void ZoneList::mousePressEvent(QMouseEvent* event) {
    QListView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        m_pressed = indexAt(event->position().toPoint());
    viewport()->update();
}

void ZoneList::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    const QModelIndex pressed = m_pressed;
    m_pressed = QModelIndex();
    viewport()->update();
    if (pressed.isValid() && pressed == indexAt(event->position().toPoint()))
        Q_EMIT chosen(pressed);
}

void ZoneList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!current.isValid() || hasFocus())
        return;
    // The search field keeps the focus; a screen reader is told where the list stands all the same.
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

} // namespace quorvane
