// SPDX-License-Identifier: MIT
#include "ActionBar.h"

#include "CopyButton.h"

#include <controls/DimmingOverlay.h>
#include <controls/Theme.h>
#include <panel/PanelMetrics.h>

#include <QHBoxLayout>
#include <QKeySequence>
#include <QPainter>

namespace quorvane {

namespace {

constexpr int verticalPadding = 12;
constexpr int buttonSpacing = 8;
constexpr double unavailableOpacity = 0.5;

} // namespace

ActionBar::ActionBar(MainQueue& queue, QWidget* parent)
    : QWidget(parent),
      m_copy(new CopyButton(queue, this)),
      m_insert(new ActionButton(
          ActionButton::Prominence::Prominent, Symbol::Return, tr("Insert"), this)),
      m_overlay(new DimmingOverlay(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(
        panelmetrics::sideMargin, verticalPadding, panelmetrics::sideMargin, verticalPadding);
    row->setSpacing(buttonSpacing);
    row->addWidget(m_copy, 1);
    row->addWidget(m_insert, 1);
    const auto copyKeys = QKeySequence(Qt::CTRL | Qt::Key_C).toString(QKeySequence::NativeText);
    m_copy->setToolTip(tr("Copy (%1)").arg(copyKeys));
    m_copy->setAccessibleDescription(copyKeys);
    setInsertTarget({});
}

void ActionBar::setAvailable(bool available) {
    setEnabled(available);
    m_overlay->setOpacity(available ? 1 : unavailableOpacity);
}

void ActionBar::setInsertTarget(const QString& name) {
    const auto keys = QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText);
    const auto text =
        name.isEmpty() ? tr("Insert (%1)").arg(keys) : tr("Insert into %1 (%2)").arg(name, keys);
    m_insert->setToolTip(text);
    m_insert->setAccessibleDescription(text);
}

void ActionBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, Theme::of(palette()).divider);
}

} // namespace quorvane
