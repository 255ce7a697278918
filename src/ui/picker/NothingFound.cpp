// SPDX-License-Identifier: MIT
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <picker/NothingFound.h>

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int usualTop = 96;
constexpr int lensSize = 24;
constexpr double lensStroke = 1.25; ///< large, it would seem heavier than the text below
constexpr int textGap = 8;
constexpr int sideMargin = 40;

} // namespace

NothingFound::NothingFound(QWidget* parent) : QWidget(parent), m_text(new QLabel(this)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    parent->installEventFilter(this);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignHCenter);
    m_text->setWordWrap(true);
    m_text->setForegroundRole(QPalette::PlaceholderText);
    m_text->setFont(textFont(font(), TextStyle::Body));
    auto* column = new QVBoxLayout(this);
    place();
    column->addWidget(m_text);
    column->addStretch();
}

bool NothingFound::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void NothingFound::showFor(const QString& query) {
    constexpr int longest = 60;
    const auto shown = query.size() > longest ? query.first(longest) + u'…' : query;
    showMessage(Symbol::Magnifyingglass, tr("No time zone matches “%1”").arg(shown));
}

void NothingFound::showMessage(Symbol symbol, const QString& text) {
    m_symbol = symbol;
    m_text->setText(text);
    place();
    update();
    setVisible(true);
    raise();
}

QString NothingFound::message() const {
    return m_text->text();
}

void NothingFound::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

/// Higher than elsewhere in a list that has too little room.
int NothingFound::top() const {
    const int text = m_text->heightForWidth(width() - 2 * sideMargin);
    return std::clamp(height() - lensSize - textGap - text, 0, usualTop);
}

void NothingFound::place() {
    layout()->setContentsMargins(sideMargin, top() + lensSize + textGap, sideMargin, 0);
}

void NothingFound::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRectF place(0, top(), width(), lensSize);
    const SymbolStyle style{lensSize, lensStroke};
    paintSymbol(painter, m_symbol, style, place, Theme::of(palette()).secondaryText);
}

} // namespace quorvane
