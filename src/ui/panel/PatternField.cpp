// SPDX-License-Identifier: MIT
#include "PatternField.h"

#include <controls/ChipSurface.h>
#include <controls/Theme.h>
#include <time/DatePattern.h>

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

constexpr double waveLength = 4;
constexpr double waveHeight = 2;
constexpr double waveWidth = 1.25;
constexpr double waveDistance = 1.5; ///< from the base line to the middle of the wave
/// QLineEdit tells of a cursor's rectangle that begins so far before the cursor.
constexpr int cursorMargin = 5;

QPainterPath wave(double from, double to, double middle) {
    QPainterPath path({from, middle});
    double side = -1;
    for (double x = from; x < to; x += waveLength / 2) {
        path.quadTo({x + waveLength / 4, middle + side * waveHeight}, {x + waveLength / 2, middle});
        side = -side;
    }
    return path;
}

} // namespace

PatternField::PatternField(PasteReader reader, QWidget* parent)
    : TextField(std::move(reader), parent) {
    connect(this, &QLineEdit::textChanged, this, &PatternField::noteUnknownLetters);
}

void PatternField::setTrailingRoom(int points) {
    m_trailingRoom = points;
    adoptPadding();
}

void PatternField::paintEvent(QPaintEvent* event) {
    // Scrolls to the cursor before it paints: the marks come after.
    TextField::paintEvent(event);
    if (!m_unknown.empty())
        paintMarks();
}

void PatternField::changeEvent(QEvent* event) {
    TextField::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        adoptPadding();
}

void PatternField::noteUnknownLetters() {
    m_unknown = unknownPatternLetters(text());
    QString told;
    if (!m_unknown.empty())
        told =
            tr("The text ends at “%1”, which is no letter of a date. Words stand in quotes: 'at'")
                .arg(text().at(m_unknown.front()));
    setToolTip(told);
    setAccessibleDescription(told);
    update();
}

void PatternField::adoptPadding() {
    constexpr int padding = ChipSurface::horizontalPadding;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    setPadding(mirrored ? m_trailingRoom : padding, mirrored ? padding : m_trailingRoom);
}

void PatternField::paintMarks() {
    QTextLayout line(text(), font());
    line.beginLayout();
    auto row = line.createLine();
    row.setLineWidth(maximumWidth());
    line.endLayout();
    const auto cursor = inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const double start = cursor.left() + cursorMargin - row.cursorToX(cursorPosition());
    const double middle = cursor.top() + fontMetrics().ascent() + waveDistance + waveHeight / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(
        contentsRect().marginsRemoved({textMargins().left(), 0, textMargins().right(), 0}));
    painter.setPen(QPen(Theme::of(surroundingPalette()).danger, waveWidth));
    for (const auto at : m_unknown) {
        const double from = start + row.cursorToX(static_cast<int>(at));
        const double to = start + row.cursorToX(static_cast<int>(at) + 1);
        const QRectF letter(from, 0, to - from, height());
        painter.save();
        painter.setClipRect(letter.normalized(), Qt::IntersectClip);
        painter.drawPath(wave(letter.normalized().left(), letter.normalized().right(), middle));
        painter.restore();
    }
}

} // namespace quorvane
