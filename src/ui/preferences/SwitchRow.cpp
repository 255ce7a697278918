// SPDX-License-Identifier: MIT
#include "SwitchRow.h"

#include <controls/ToggleSwitch.h>
#include <controls/WrappedText.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int gap = 12;

} // namespace

SwitchRow::SwitchRow(const QString& label, QWidget* parent)
    : QWidget(parent),
      m_label(new WrappedText(label, TextStyle::Body, WrappedText::Color::Primary, this)),
      m_switch(new ToggleSwitch(this)),
      m_labelPlace(new QVBoxLayout),
      m_switchPlace(new QVBoxLayout) {
    m_switch->setAccessibleName(label);
    // Or else a screen reader reads it on entering the section, and again at the switch.
    m_label->setBuddy(m_switch);
    m_labelPlace->addWidget(m_label);
    m_switchPlace->addWidget(m_switch);
    m_switchPlace->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    row->addLayout(m_labelPlace, 1);
    row->addLayout(m_switchPlace);
    connect(m_switch, &ToggleSwitch::clicked, this, &SwitchRow::switched);
    followFont();
}

void SwitchRow::setOn(bool on) {
    m_switch->setChecked(on);
}

void SwitchRow::mousePressEvent(QMouseEvent* event) {
    // Kept, so that the release comes here as well.
    event->accept();
}

void SwitchRow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_switch->click();
}

void SwitchRow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void SwitchRow::followFont() {
    const int line = lineHeight(font(), TextStyle::Body);
    const int target = m_switch->sizeHint().height();
    const int aroundLabel = std::max(0, (target - line) / 2);
    m_labelPlace->setContentsMargins(0, aroundLabel, 0, aroundLabel);
    m_switchPlace->setContentsMargins(0, std::max(0, (line - target) / 2), 0, 0);
}

} // namespace quorvane
