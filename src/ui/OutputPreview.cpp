// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/Theme.h>
#include <ui/OutputFont.h>
#include <ui/OutputPreview.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int padding = 10;
constexpr int leastHeight = 38;
constexpr int cornerRadius = 8;

} // namespace

OutputPreview::OutputPreview(QWidget* parent) : QPlainTextEdit(parent) {
    setAccessibleName(tr("Preview"));
    setFont(outputFont(font()));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAnywhere);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(padding);
}

void OutputPreview::setOutput(const QString& output) {
    if (output != toPlainText())
        setPlainText(output);
    updateGeometry();
}

QSize OutputPreview::sizeHint() const {
    return {QPlainTextEdit::sizeHint().width(), fittingHeight()};
}

QSize OutputPreview::minimumSizeHint() const {
    return {0, fittingHeight()};
}

void OutputPreview::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    // Another width wraps into another number of lines.
    updateGeometry();
}

void OutputPreview::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        fillRounded(painter, viewport()->rect(), cornerRadius, Theme::of(palette()).quiet);
    }
    QPlainTextEdit::paintEvent(event);
}

int OutputPreview::fittingHeight() const {
    const auto* layout = document()->documentLayout();
    // A plain text document counts its height in lines.
    const double lines = layout->documentSize().height();
    const double height = lines * fontMetrics().lineSpacing() + 2 * document()->documentMargin();
    return std::max(static_cast<int>(std::ceil(height)), leastHeight);
}

} // namespace quorvane
