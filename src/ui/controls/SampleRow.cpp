// SPDX-License-Identifier: MIT
#include "SampleRow.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvane {

namespace {

constexpr int leastCodeColumn = 44;
constexpr int codeGap = 8;
constexpr int sampleDistance = 12;
constexpr int linePadding = 5;
constexpr int linesPadding = 4;

int widthOf(const QString& text, const QFont& font) {
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(text)));
}

} // namespace

SampleRow::SampleRow(SampleItem item, SampleList::Form form, const QFont& codeFont, QWidget* parent)
    : MenuRow(item.title, parent),
      m_item(std::move(item)),
      m_form(form),
      m_codeFont(codeFont) {
    //: Letters of a pattern, then what they make: "yyyy, 2026"
    setAccessibleDescription(tr("%1, %2").arg(m_item.code, m_item.sample));
}

QSize SampleRow::sizeHint() const {
    const int line = titleWidth() + sampleDistance + widthOf(m_item.sample, titleFont());
    if (m_form == SampleList::Form::OneLine)
        return {
            2 * horizontalPadding + codeWidth() + codeGap + line, lineHeight() + 2 * linePadding};
    return {
        2 * horizontalPadding + std::max(codeWidth(), line), 2 * lineHeight() + 2 * linesPadding};
}

void SampleRow::paintContent(QPainter& painter, const Theme& theme) {
    const auto inner = rect().adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    auto line = inner;
    auto code = inner;
    if (m_form == SampleList::Form::OneLine) {
        line.setLeft(inner.left() + codeWidth() + codeGap);
    } else {
        line = QRect(inner.left(), linesPadding, inner.width(), lineHeight());
        code = line.translated(0, lineHeight());
    }
    const bool isCodeFirst = m_form == SampleList::Form::OneLine;
    painter.setFont(titleFont());
    paintText(painter, line, m_item.title, Qt::AlignLeft, theme.text);
    const auto rest = line.adjusted(titleWidth() + sampleDistance, 0, 0, 0);
    paintText(painter, rest, m_item.sample, Qt::AlignRight, theme.secondaryText);
    painter.setFont(m_codeFont);
    paintText(
        painter, code, m_item.code, Qt::AlignLeft, isCodeFirst ? theme.text : theme.secondaryText);
}

void SampleRow::paintText(
    QPainter& painter,
    const QRect& place,
    const QString& text,
    Qt::Alignment alignment,
    const QColor& color) const {
    // All fonts of a row stand on one base line.
    const auto metrics = painter.fontMetrics();
    const QFontMetrics titles(titleFont());
    const int lowering =
        (titles.ascent() - titles.descent() - metrics.ascent() + metrics.descent()) / 2;
    painter.setPen(color);
    painter.drawText(
        placed(place.translated(0, lowering)),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment)) | Qt::AlignVCenter |
            Qt::TextSingleLine,
        metrics.elidedText(text, Qt::ElideRight, place.width()));
}

int SampleRow::codeWidth() const {
    const int width = widthOf(m_item.code, m_codeFont);
    return m_form == SampleList::Form::OneLine ? std::max(width, leastCodeColumn) : width;
}

int SampleRow::lineHeight() const {
    return std::max(QFontMetrics(titleFont()).height(), QFontMetrics(m_codeFont).height());
}

} // namespace quorvane
