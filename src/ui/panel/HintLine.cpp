// SPDX-License-Identifier: MIT
#include "HintLine.h"

#include <controls/IconButton.h>
#include <controls/TextButton.h>
#include <controls/Theme.h>
#include <controls/WrappedText.h>
#include <panel/PanelMetrics.h>

#include <QHBoxLayout>
#include <QPainter>

namespace quorvane {

namespace {

constexpr int aboveAndBelow = 6;
constexpr int gap = 8;

} // namespace

HintLine::HintLine(QWidget* parent)
    : RoleWidget(QAccessible::Grouping, parent),
      m_text(new WrappedText({}, TextStyle::Callout, WrappedText::Color::Secondary, this)),
      m_action(new TextButton({}, this)) {
    auto* dismiss = new IconButton(
        IconButton::Kind::Section, Symbol::Xmark, tr("Do not show this again"), this);
    setAccessibleName(tr("Hint"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(
        panelmetrics::sideMargin,
        aboveAndBelow,
        panelmetrics::sideMargin - panelmetrics::overhang,
        aboveAndBelow);
    row->setSpacing(gap);
    row->addWidget(m_text, 1, Qt::AlignVCenter);
    row->addWidget(m_action);
    row->addWidget(dismiss);
    connect(m_action, &TextButton::clicked, this, &HintLine::followed);
    connect(dismiss, &IconButton::clicked, this, &HintLine::dismissed);
    hide();
}

void HintLine::setHint(const PanelHint& hint) {
    // A screen reader is told of every assignment.
    if (hint.text != m_text->text()) {
        m_text->setText(hint.text);
        m_action->setText(hint.action);
        m_action->setAccessibleDescription(hint.text);
    }
    setVisible(!hint.text.isEmpty());
}

void HintLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    painter.fillRect(rect(), theme.subtleFill);
    painter.fillRect(0, height() - 1, width(), 1, theme.divider);
}

} // namespace quorvane
