// SPDX-License-Identifier: MIT
#include "PreviewSection.h"

#include "SectionLabel.h"

#include <controls/WrappedText.h>
#include <panel/OutputPreview.h>

#include <QEvent>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

namespace {

constexpr int promptInset = 10;

/// Nobody listens to the whole of a long output; the preview itself has it.
QString spokenPart(const QString& output) {
    constexpr qsizetype longest = 500;
    return output.size() <= longest ? output : output.first(longest) + u'…';
}

} // namespace

PreviewSection::PreviewSection(MainQueue& queue, QWidget* parent)
    : Section(tr("Preview"), Symbol::EyeSquare, parent),
      m_preview(new OutputPreview(queue, this)),
      m_notice(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Secondary, this)),
      m_prompt(new WrappedText(
          tr("Choose a time zone"), TextStyle::Callout, WrappedText::Color::Secondary, this)),
      m_reading(queue, *m_preview) {
    label().setBuddy(m_preview);
    frameWhileUnavailable();
    body().addWidget(m_preview, 1);
    body().addWidget(m_notice);
    m_notice->hide();
    m_prompt->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_prompt->hide();
    m_preview->installEventFilter(this);
    connect(m_preview, &OutputPreview::copyRequested, this, &PreviewSection::copyRequested);
}

void PreviewSection::setOutput(const QString& output) {
    m_preview->setOutput(output);
    if (std::exchange(m_output, output) != output && m_preview->isVisible())
        m_reading.announceSoon(output.isEmpty() ? m_prompt->text() : spokenPart(output));
}

void PreviewSection::setAvailable(bool available) {
    Section::setAvailable(available);
    m_prompt->setVisible(!available);
    m_prompt->raise();
    placePrompt();
}

void PreviewSection::holdBack(int height) {
    const int before = m_preview->heldBack();
    m_preview->holdBack(height);
    if (m_preview->heldBack() == before)
        return;
    // At once, not by a request to each layout in turn: between them the sum would be of two times.
    for (QWidget* widget = m_preview; widget != parentWidget(); widget = widget->parentWidget())
        widget->updateGeometry();
}

int PreviewSection::heldBack() const {
    return m_preview->heldBack();
}

void PreviewSection::setScrollBarShown(bool shown) {
    m_preview->setScrollBarShown(shown);
}

void PreviewSection::setNotice(const QString& text) {
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}

bool PreviewSection::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        placePrompt();
    return Section::eventFilter(watched, event);
}

// Where the first row of an output stands.
void PreviewSection::placePrompt() {
    const QRect output(m_preview->mapTo(this, QPoint()), m_preview->size());
    const int height = m_prompt->sizeHint().height();
    const int top = output.top() + (m_preview->minimumSizeHint().height() - height) / 2;
    m_prompt->setGeometry(
        output.left() + promptInset, top, output.width() - 2 * promptInset, height);
}

} // namespace quorvane
