// SPDX-License-Identifier: MIT
#include "OutputLayout.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr double rowHeightPerSize = 1.5;
/// A plain text edit offers to scroll as soon as less than this stays free below the text.
constexpr double scrollSlack = 2;
constexpr int noLimit = std::numeric_limits<int>::max();

void discardRows(QTextBlock block) {
    block.clearLayout();
    block.setLineCount(1);
}

} // namespace

QString documentText(QString output) {
    constexpr QChar zeroWidthSpace(0x200b);
    return output.replace(u"\r\n"_s, QString(zeroWidthSpace) + u'\n');
}

qsizetype firstPartLength(const QString& text, qsizetype size) {
    if (size >= text.size())
        return text.size();
    return text.at(size).isLowSurrogate() ? size + 1 : size;
}

qsizetype nextPartLength(const QString& text, qsizetype shown, qsizetype size) {
    if (shown + size >= text.size())
        return text.size() - shown;
    const auto feed = text.indexOf(u'\n', shown + size);
    return (feed < 0 ? text.size() : feed + 1) - shown;
}

OutputLayout::OutputLayout(QTextDocument* document) : QPlainTextDocumentLayout(document) {
}

void OutputLayout::setWidth(int width) {
    if (width == m_width)
        return;
    m_width = width;
    documentChanged(0, 0, document()->characterCount());
}

int OutputLayout::rowHeight() const {
    const auto font = document()->defaultFont();
    return std::max(
        qRound(QFontInfo(font).pixelSize() * rowHeightPerSize), QFontMetrics(font).height());
}

int OutputLayout::rowCount(int width, int limit) const {
    int rows = 0;
    for (auto block = document()->begin(); block.isValid() && rows < limit; block = block.next()) {
        if (width == m_width) {
            static_cast<void>(blockBoundingRect(block));
            rows += block.layout()->lineCount();
        } else {
            QTextLayout trial(block.text(), document()->defaultFont());
            rows += fill(trial, width, limit - rows);
        }
    }
    return rows;
}

QPainterPath
OutputLayout::area(const QTextBlock& block, int from, int to, const QRectF& visible) const {
    QPainterPath area;
    area.setFillRule(Qt::WindingFill);
    const auto& layout = *block.layout();
    const int height = rowHeight();
    const int firstRow = std::max(0, static_cast<int>(std::floor(visible.top() / height)));
    const int endRow =
        std::min(layout.lineCount(), static_cast<int>(std::ceil(visible.bottom() / height)));
    for (int row = firstRow; row < endRow; ++row) {
        const auto line = layout.lineAt(row);
        const int first = std::max(from - block.position(), line.textStart());
        const int end = std::min(to - block.position(), line.textStart() + line.textLength());
        // Characters that are neighbours in the text need not be neighbours in the row.
        for (int at = first; at < end; ++at) {
            const double left = line.cursorToX(at);
            const double right = line.cursorToX(at, QTextLine::Trailing);
            area.addRect(QRectF(left, row * height, right - left, height).normalized());
        }
    }
    return area;
}

QSizeF OutputLayout::documentSize() const {
    // A plain text document counts its height in rows.
    return {static_cast<double>(m_width), static_cast<double>(document()->lineCount())};
}

QRectF OutputLayout::blockBoundingRect(const QTextBlock& block) const {
    if (!block.isValid())
        return {};
    auto& layout = *block.layout();
    if (layout.lineCount() == 0) {
        fill(layout, m_width, noLimit);
        QTextBlock(block).setLineCount(layout.lineCount());
    }
    const bool isLast = !block.next().isValid();
    const double below = isLast ? document()->documentMargin() - scrollSlack : 0;
    return {0, 0, static_cast<double>(m_width), layout.lineCount() * rowHeight() + below};
}

// Unlike the base class's, this one lays nothing out: whoever paints or measures a paragraph does.
void OutputLayout::documentChanged(int from, int /*charsRemoved*/, int charsAdded) {
    auto block = document()->findBlock(from);
    for (; block.isValid() && block.position() <= from + charsAdded; block = block.next())
        discardRows(block);
    Q_EMIT documentSizeChanged(documentSize());
    Q_EMIT update();
}

int OutputLayout::fill(QTextLayout& layout, int width, int limit) const {
    const double margin = document()->documentMargin();
    const int height = rowHeight();
    const QFontMetricsF font(document()->defaultFont());
    const double baseline = std::floor((height - font.height()) / 2) + font.ascent();
    const auto option = document()->defaultTextOption();
    const bool isFromRight = option.alignment().testFlag(Qt::AlignRight);
    layout.setTextOption(option);
    layout.beginLayout();
    int rows = 0;
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        const int indent = rows > 0 ? m_indent : 0;
        line.setLineWidth(width - 2 * margin - indent);
        line.setPosition(
            {margin + (isFromRight ? 0 : indent), rows * height + baseline - line.ascent()});
        if (++rows == limit)
            break;
    }
    layout.endLayout();
    return rows;
}

} // namespace quorvane
