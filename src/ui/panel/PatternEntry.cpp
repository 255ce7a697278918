// SPDX-License-Identifier: MIT
#include "PatternEntry.h"

#include "PatternField.h"
#include "PatternHelpButton.h"

#include <panel/OutputPreview.h>

#include <QEvent>
#include <QStyle>

#include <utility>

namespace quorvane {

namespace {

constexpr int helpInset = 3;
constexpr int helpGap = 2;

} // namespace

PatternEntry::PatternEntry(
    const PopoverEffects& effects,
    PasteReader pasteReader,
    PatternPage::Sample sample,
    QWidget* parent)
    : QWidget(parent),
      m_sample(std::move(sample)),
      m_field(new PatternField(std::move(pasteReader), this)),
      m_help(new PatternHelpButton(
          effects, [this] { return makePage(); }, this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_field->setFont(outputFont(font()));
    m_field->setAccessibleName(tr("Custom format"));
    m_field->setPlaceholderText(tr("e.g. yyyy-MM-dd HH:mm zzz"));
    m_field->setTrailingRoom(helpInset + m_help->sizeHint().width() + helpGap);
    connect(m_field, &QLineEdit::textEdited, this, &PatternEntry::edited);
}

void PatternEntry::setPattern(const QString& pattern) {
    if (m_field->text() != pattern)
        m_field->setText(pattern);
}

void PatternEntry::enter() {
    m_field->setFocus(Qt::OtherFocusReason);
    m_field->end(false);
}

QSize PatternEntry::sizeHint() const {
    return m_field->sizeHint();
}

QSize PatternEntry::minimumSizeHint() const {
    return m_field->minimumSizeHint();
}

bool PatternEntry::event(QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange)
        place();
    return QWidget::event(event);
}

QWidget* PatternEntry::makePage() {
    auto* page = new PatternPage(m_sample, m_field->font());
    connect(page, &PatternPage::patternChosen, this, &PatternEntry::takePattern);
    connect(page, &PatternPage::letterChosen, this, &PatternEntry::takeLetter);
    return page;
}

// Both leave the field's undo as it is for typing: what was there before comes back by Ctrl+Z.
void PatternEntry::takePattern(const QString& pattern) {
    m_help->closePage();
    m_field->selectAll();
    m_field->insert(pattern);
    enter();
    Q_EMIT edited(m_field->text());
}

void PatternEntry::takeLetter(const QString& letter) {
    m_help->closePage();
    m_field->insert(letter);
    m_field->setFocus(Qt::OtherFocusReason);
    Q_EMIT edited(m_field->text());
}

void PatternEntry::place() {
    m_field->setGeometry(rect());
    const auto size = m_help->sizeHint();
    const QRect end(
        width() - helpInset - size.width(),
        (height() - size.height()) / 2,
        size.width(),
        size.height());
    m_help->setGeometry(QStyle::visualRect(layoutDirection(), rect(), end));
}

} // namespace quorvane
