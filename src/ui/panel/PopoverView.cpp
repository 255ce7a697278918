// SPDX-License-Identifier: MIT
#include "ActionBar.h"
#include "CopyButton.h"
#include "DateSection.h"
#include "FormatSection.h"
#include "HintLine.h"
#include "PopoverHeader.h"
#include "PreviewSection.h"
#include "TimeZoneSection.h"

#include <controls/SectionColumn.h>
#include <delivery/CopyText.h>
#include <panel/PanelMetrics.h>
#include <panel/PopoverView.h>

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

namespace {

const QKeySequence preferencesKeys(Qt::CTRL | Qt::Key_Comma);
const QKeySequence quitKeys(Qt::CTRL | Qt::Key_Q);

} // namespace

PopoverView::PopoverView(DateTimeModel& model, Dependencies dependencies, Callbacks callbacks)
    : m_model(model),
      m_dependencies(std::move(dependencies)),
      m_callbacks(std::move(callbacks)),
      m_refresh(m_dependencies.mainQueue, [this] { refresh(); }),
      m_header(makeHeader()),
      m_hint(new HintLine(this)),
      m_dateSection(new DateSection(model, entryDependencies(), this)),
      m_timeZoneSection(new TimeZoneSection(
          model,
          {m_dependencies.zones,
           m_dependencies.clock,
           model.locale(),
           m_dependencies.mainQueue,
           m_dependencies.pasteReader},
          this)),
      m_formatSection(new FormatSection(
          model, m_dependencies.popoverEffects, m_dependencies.pasteReader, this)),
      m_previewSection(new PreviewSection(m_dependencies.mainQueue, this)),
      m_actionBar(new ActionBar(m_dependencies.mainQueue, this)) {
    layOut();
    addShortcuts();
    connectControls();
    refresh();
}

PopoverView::~PopoverView() = default;

void PopoverView::performCopy() {
    copy(m_model.formattedOutput());
}

void PopoverView::copy(const QString& text) {
    auto& button = m_actionBar->copyButton();
    if (copyText(m_dependencies.pasteboard, text) == PutOutcome::Taken)
        button.confirm();
    else
        button.refuse();
}

void PopoverView::setInsertTarget(const QString& name) {
    m_actionBar->setInsertTarget(name);
}

void PopoverView::setNotice(const QString& text) {
    m_previewSection->setNotice(text);
}

void PopoverView::setHint(const PanelHint& hint) {
    // With what hides the focus would go to where nobody looks for it.
    if (hint.text.isEmpty() && focusWidget() != nullptr && m_hint->isAncestorOf(focusWidget()))
        m_dateSection->focusStart();
    m_hint->setHint(hint);
}

void PopoverView::togglePresentationMode() {
    const bool isPopover = m_model.presentationMode() == PresentationMode::Popover;
    m_model.setPresentationMode(isPopover ? PresentationMode::Window : PresentationMode::Popover);
}

void PopoverView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        m_callbacks.onClose();
    else if (event->matches(QKeySequence::Copy) && !event->isAutoRepeat())
        m_actionBar->copyButton().click();
    else
        QWidget::keyPressEvent(event);
}

void PopoverView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // The picker covers everything else, and is still open if it was when the panel hid.
    if (!m_timeZoneSection->isPicking())
        m_dateSection->focusStart();
}

EntryDependencies PopoverView::entryDependencies() const {
    return {
        m_dependencies.clock,
        m_dependencies.currentZone,
        m_model.locale(),
        m_dependencies.popoverEffects,
        m_dependencies.pasteReader};
}

PopoverHeader* PopoverView::makeHeader() {
    return new PopoverHeader(
        {[this] { togglePresentationMode(); },
         [this] { m_callbacks.onClose(); },
         {{tr("Preferences…"),
           Symbol::Gear,
           preferencesKeys,
           [this] {
               m_callbacks.onShowPreferences();
           }},
          {tr("Check for Updates…"),
           Symbol::ArrowDownCircle,
           {},
           [this] {
               m_callbacks.onCheckForUpdates();
           }},
          {tr("Quit Quorvane"),
           Symbol::Power,
           quitKeys,
           [this] {
               m_callbacks.onQuit();
           }}}},
        m_dependencies.popoverEffects,
        this);
}

void PopoverView::layOut() {
    using namespace panelmetrics;
    constexpr int side = sideMargin - overhang;
    auto* sections =
        new SectionColumn({side, sectionSpacing, side, sectionSpacing}, sectionSpacing, this);
    sections->add(m_dateSection);
    sections->add(m_timeZoneSection);
    sections->add(m_formatSection);
    sections->addScrolling(m_previewSection, *m_previewSection);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_hint);
    column->addWidget(sections, 1);
    column->addWidget(m_actionBar);
}

void PopoverView::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        // What the panel has opened is a window of its own, where these keys hold as well; but only
        // while the panel is the one that the user works in.
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::ApplicationShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, action] {
            if (isActiveWindow())
                action();
        });
    };
    const auto insert = [this] {
        m_actionBar->insertButton().click();
    };
    add(Qt::CTRL | Qt::Key_Return, insert);
    add(Qt::CTRL | Qt::Key_Enter, insert);
    add(preferencesKeys, [this] { m_callbacks.onShowPreferences(); });
    // A text field takes them for itself, and hands them on where it has nothing to copy.
    for (const auto& keys : QKeySequence::keyBindings(QKeySequence::Copy))
        add(keys, [this] { m_actionBar->copyButton().click(); });
}

void PopoverView::connectControls() {
    connect(&m_model, &DateTimeModel::objectWillChange, this, [this] { m_refresh.schedule(); });
    connect(&m_actionBar->copyButton(), &CopyButton::clicked, this, &PopoverView::performCopy);
    connect(m_hint, &HintLine::followed, this, [this] { m_callbacks.onHintFollowed(); });
    connect(m_hint, &HintLine::dismissed, this, [this] { m_callbacks.onHintDismissed(); });
    connect(m_previewSection, &PreviewSection::copyRequested, this, &PopoverView::copy);
    connect(&m_actionBar->insertButton(), &ActionButton::clicked, this, [this] {
        m_callbacks.onInsert();
    });
}

void PopoverView::refresh() {
    m_header->setShortcut(m_model.hotKey(), m_dependencies.keyboardLayout);
    m_header->setPresentationMode(m_model.presentationMode());
    m_dateSection->refresh();
    m_timeZoneSection->refresh();
    m_formatSection->refresh();
    refreshDownstream();
    m_previewSection->setOutput(m_model.formattedOutput());
}

void PopoverView::refreshDownstream() {
    const bool available = m_model.isDeliverable();
    m_formatSection->setAvailable(available);
    m_previewSection->setAvailable(available);
    m_actionBar->setAvailable(available);
}

} // namespace quorvane
