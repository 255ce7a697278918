// SPDX-License-Identifier: MIT
#include "CalendarDayAccessible.h"
#include "CalendarKeys.h"

#include <controls/DevicePixels.h>
#include <controls/TextStyle.h>
#include <entry/CalendarDay.h>

#include <QKeyEvent>
#include <QPainter>

namespace quorvane {

namespace {

constexpr double discSize = 28;
constexpr double typedFrame = 2;
constexpr double dotSize = 3;
constexpr double dotRise = 3; ///< from the disc's lower edge

} // namespace

CalendarDay::CalendarDay(QWidget* parent) : PressableControl(parent) {
    CalendarDayAccessible::install();
    setFixedSize(sizeHint());
    // What is composed here is written into the calendar's line.
    setAttribute(Qt::WA_InputMethodEnabled);
    connect(this, &CalendarDay::clicked, this, &CalendarDay::pick);
}

void CalendarDay::setDay(const MonthGridDay& day) {
    m_day = day.day;
    setText(day.number);
    setAccessibleName(day.fullText);
}

void CalendarDay::setMarks(Marks marks) {
    if (marks == m_marks)
        return;
    QAccessible::State changed;
    changed.selected = marks.isChosen != m_marks.isChosen;
    changed.disabled = marks.isRefused != m_marks.isRefused;
    m_marks = marks;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    update();
}

FocusOutline CalendarDay::focusOutline() const {
    return {disc(), cornerRadius()};
}

double CalendarDay::cornerRadius() const {
    return discSize / 2;
}

void CalendarDay::paintControl(QPainter& painter, const Theme& theme) {
    fillRounded(painter, disc(), cornerRadius(), discColor(theme));
    if (m_marks.isTyped)
        frameRounded(painter, disc(), cornerRadius(), theme.accentText, typedFrame);
    const bool isStrong = m_marks.isChosen || m_marks.isToday;
    const auto weight = isStrong ? QFont::DemiBold : QFont::Normal;
    painter.setFont(textFont(font(), TextStyle::Callout, weight));
    painter.setPen(foreground(theme));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextDontClip, text());
    if (m_marks.isToday) {
        QRectF dot(0, 0, dotSize, dotSize);
        dot.moveCenter(disc().center());
        dot.moveBottom(disc().bottom() - dotRise);
        fillRounded(painter, dot, dotSize / 2, foreground(theme));
    }
}

void CalendarDay::keyPressEvent(QKeyEvent* event) {
    // A button would walk among its siblings, whatever their places; and Return is the calendar's.
    if (isCalendarKey(*event) || isReturn(*event))
        event->ignore();
    else
        PressableControl::keyPressEvent(event);
}

void CalendarDay::pick() {
    if (!m_marks.isRefused)
        Q_EMIT picked(m_day);
}

QRectF CalendarDay::disc() const {
    QRectF disc(0, 0, discSize, discSize);
    disc.moveCenter(QRectF(rect()).center());
    return disc;
}

QColor CalendarDay::discColor(const Theme& theme) const {
    const auto shown = m_marks.isRefused ? VisualState::Normal : visualState();
    return m_marks.isChosen ? accentFill(shown, theme) : overlayFor(shown, theme);
}

QColor CalendarDay::foreground(const Theme& theme) const {
    if (m_marks.isChosen)
        return theme.onAccent;
    if (m_marks.isRefused)
        return theme.disabledText;
    return m_marks.isToday ? theme.accentText : theme.text;
}

} // namespace quorvane
