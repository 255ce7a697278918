// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QPlainTextDocumentLayout>

namespace quorvane {

/// The output for QTextDocument, which takes a carriage return and the line feed after it for one
/// break: the return is replaced by an invisible character, so that positions are the same in both.
[[nodiscard]] QString documentText(QString output);

/// How much of a text to show first: all of it, or about `size` characters of a longer one. Never
/// parts a surrogate pair.
[[nodiscard]] qsizetype firstPartLength(const QString& text, qsizetype size);

/// How much of a text to show after its first `shown` characters: about `size` characters and on to
/// the end of the paragraph, because a paragraph is laid out anew with all that is added to it.
/// Zero at the end.
[[nodiscard]] qsizetype nextPartLength(const QString& text, qsizetype shown, qsizetype size);

/// Lays plain text out in rows of one height, whatever fonts its characters fall back to. Only the
/// paragraphs that are painted or measured are laid out.
class OutputLayout final : public QPlainTextDocumentLayout {
    Q_OBJECT

public:
    explicit OutputLayout(QTextDocument* document);

    /// What rows and margins may take, in points. Another width discards the rows.
    void setWidth(int width);

    /// How far the rows of a paragraph stand in from its first one, in points; for what is laid out
    /// from now on.
    void setHangingIndent(int indent) { m_indent = indent; }

    /// In points: half as much again as the font's size, or what the font needs if that is more.
    [[nodiscard]] int rowHeight() const;

    /// The rows that the text takes in `width` points, counted no further than about `limit`: what
    /// lies beyond costs nothing.
    [[nodiscard]] int rowCount(int width, int limit) const;

    /// Where the characters of the document from `from` to before `to` stand in a paragraph, over
    /// the full height of their rows, in the paragraph's coordinates; only in the rows that
    /// `visible` touches.
    [[nodiscard]] QPainterPath
    area(const QTextBlock& block, int from, int to, const QRectF& visible) const;

    [[nodiscard]] QSizeF documentSize() const override;
    [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& block) const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    int fill(QTextLayout& layout, int width, int limit) const;

    int m_width = 0;
    int m_indent = 0;
};

} // namespace quorvane
