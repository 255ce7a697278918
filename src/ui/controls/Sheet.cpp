// SPDX-License-Identifier: MIT
#include <controls/PopoverSurface.h>
#include <controls/Sheet.h>
#include <controls/Theme.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace quorvane {

namespace {

constexpr QSize wholeSize{440, 460};
constexpr int topMargin = 40;
constexpr int heightLeftFree = 56;
constexpr double cornerRadius = 12;
constexpr int openingMilliseconds = 160;
constexpr int openingWay = 8;

bool takesTab(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() &&
           (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

} // namespace

Sheet::Sheet(QWidget* parent, QWidget* content) : QWidget(parent), m_content(content) {
    content->setParent(this);
    setFocusProxy(content);
    parent->installEventFilter(this);
    m_opening.setDuration(openingMilliseconds);
    m_opening.setStartValue(0.0);
    m_opening.setEndValue(1.0);
    m_opening.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_opening, &QVariantAnimation::valueChanged, this, &Sheet::cover);
}

void Sheet::open() {
    m_focusBefore = window()->focusWidget();
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration) != 0)
        m_opening.start();
    cover();
    show();
    raise();
    m_content->setFocus(Qt::PopupFocusReason);
}

void Sheet::dismiss() {
    hide();
    if (m_focusBefore)
        m_focusBefore->setFocus(Qt::PopupFocusReason);
    Q_EMIT closed();
    deleteLater();
}

bool Sheet::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        cover();
    return QWidget::eventFilter(watched, event);
}

void Sheet::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    painter.setOpacity(progress());
    // Only over what is there: a window with round corners has nothing in them.
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(rect(), theme.scrim);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    paintRaisedSurface(
        painter, surface(), cornerRadius, theme, {theme.popoverBackground, theme.border});
}

void Sheet::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        dismiss();
    else
        QWidget::keyPressEvent(event);
}

void Sheet::mousePressEvent(QMouseEvent* event) {
    // What lies below takes no input while the sheet is open.
    event->accept();
}

bool Sheet::focusNextPrevChild(bool next) {
    auto* candidate = window()->focusWidget();
    for (auto* start = candidate; candidate != nullptr;) {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (candidate == start)
            return false;
        if (m_content->isAncestorOf(candidate) && takesTab(candidate)) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

void Sheet::cover() {
    setGeometry(parentWidget()->rect());
    m_content->setGeometry(surface());
    update();
}

QRect Sheet::surface() const {
    const int height = std::min(wholeSize.height(), parentWidget()->height() - heightLeftFree);
    const int left = (parentWidget()->width() - wholeSize.width()) / 2;
    const int top = topMargin - qRound((1 - progress()) * openingWay);
    return {left, top, wholeSize.width(), height};
}

double Sheet::progress() const {
    return m_opening.state() == QAbstractAnimation::Running ? m_opening.currentValue().toDouble()
                                                            : 1;
}

} // namespace quorvane
