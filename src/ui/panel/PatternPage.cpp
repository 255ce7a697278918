// SPDX-License-Identifier: MIT
#include "PatternPage.h"

#include "PatternGuide.h"

#include <controls/SampleList.h>

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace quorvane {

namespace {

constexpr int padding = 8;
constexpr int readyWidth = 252;
constexpr int lettersWidth = 216;

std::vector<SampleItem>
withSamples(const std::vector<PatternHint>& hints, const PatternPage::Sample& sample) {
    std::vector<SampleItem> items;
    items.reserve(hints.size());
    for (const auto& hint : hints)
        items.push_back({hint.pattern, hint.purpose, sample(hint.pattern)});
    return items;
}

bool goesToTheOtherList(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Tab ||
           key == Qt::Key_Backtab;
}

} // namespace

PatternPage::PatternPage(const Sample& sample, const QFont& codeFont, QWidget* parent)
    : QWidget(parent),
      m_ready(new SampleList(
          tr("Ready patterns"),
          SampleList::Form::TwoLines,
          withSamples(readyPatterns(), sample),
          codeFont,
          this)),
      m_letters(new SampleList(
          tr("Letters"),
          SampleList::Form::OneLine,
          withSamples(patternLetters(), sample),
          codeFont,
          this)) {
    setFocusProxy(m_ready);
    m_ready->setMinimumWidth(readyWidth);
    m_letters->setMinimumWidth(lettersWidth);
    connect(m_ready, &SampleList::chosen, this, [this](int index) {
        Q_EMIT patternChosen(readyPatterns().at(static_cast<std::size_t>(index)).pattern);
    });
    connect(m_letters, &SampleList::chosen, this, [this](int index) {
        Q_EMIT letterChosen(patternLetters().at(static_cast<std::size_t>(index)).pattern);
    });
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, padding, 0, padding);
    columns->setSpacing(0);
    columns->addWidget(m_ready);
    columns->addWidget(m_letters);
    for (auto* row : findChildren<QAbstractButton*>())
        row->installEventFilter(this);
}

bool PatternPage::eventFilter(QObject* watched, QEvent* event) {
    auto* row = qobject_cast<QWidget*>(watched);
    if (row == nullptr || event->type() != QEvent::KeyPress ||
        !goesToTheOtherList(static_cast<QKeyEvent*>(event)->key()))
        return QWidget::eventFilter(watched, event);
    auto* other = m_ready->isAncestorOf(row) ? m_letters : m_ready;
    other->focusRowAt(row->mapTo(window(), row->rect().center()));
    return true;
}

} // namespace quorvane
