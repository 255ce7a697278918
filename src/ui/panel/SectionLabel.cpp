// SPDX-License-Identifier: MIT
#include "SectionLabel.h"

#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <panel/PanelMetrics.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace quorvane {

namespace {

constexpr int symbolSize = 16;
constexpr int symbolGap = 6;
constexpr int noteGap = 6;

} // namespace

SectionLabel::SectionLabel(const QString& name, Symbol icon, QWidget* parent)
    : QWidget(parent),
      m_icon(icon),
      m_name(new QLabel(name, this)),
      m_note(new QLabel(this)),
      m_row(new QHBoxLayout(this)),
      m_symbolRoom(new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Minimum)) {
    setMinimumHeight(panelmetrics::labelHeight);
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    m_row->addSpacerItem(m_symbolRoom);
    m_row->addWidget(m_name);
    m_row->addSpacing(noteGap);
    m_row->addWidget(m_note);
    m_row->addStretch();
    followFont();
}

void SectionLabel::setNote(const QString& note) {
    m_note->setText(note);
}

void SectionLabel::addTrailing(QWidget* widget, End end) {
    m_row->addWidget(widget);
    if (end == End::WithColumn)
        m_row->addSpacing(panelmetrics::overhang);
}

void SectionLabel::setBuddy(QWidget* control) {
    m_name->setBuddy(control);
}

void SectionLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto style = besideText(font(), SymbolStyle());
    const QRect symbol(panelmetrics::overhang, 0, static_cast<int>(style.size), height());
    paintSymbol(
        painter,
        m_icon,
        style,
        QStyle::visualRect(layoutDirection(), rect(), symbol),
        Theme::of(palette()).secondaryText);
}

void SectionLabel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void SectionLabel::followFont() {
    const int symbol = besideText(font(), symbolSize);
    m_symbolRoom->changeSize(
        panelmetrics::overhang + symbol + symbolGap, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
    m_row->invalidate();
    m_name->setFont(textFont(font(), TextStyle::Headline));
    m_note->setFont(textFont(font(), TextStyle::Callout));
}

} // namespace quorvane
