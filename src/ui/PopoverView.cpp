// SPDX-License-Identifier: MIT
#include <delivery/CopyText.h>
#include <ui/ActionBar.h>
#include <ui/CopyButton.h>
#include <ui/DateSection.h>
#include <ui/FormatSection.h>
#include <ui/PanelMetrics.h>
#include <ui/PopoverHeader.h>
#include <ui/PopoverView.h>
#include <ui/PreviewSection.h>
#include <ui/TimeZoneSection.h>

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

PopoverView::PopoverView(DateTimeModel& model, Services services, Callbacks callbacks)
    : m_model(model),
      m_services(std::move(services)),
      m_callbacks(std::move(callbacks)),
      m_refresh(m_services.mainQueue, [this] { refresh(); }),
      m_header(new PopoverHeader([this] { m_callbacks.onClose(); }, this)),
      m_dateSection(new DateSection(model, entrySurroundings(), this)),
      m_timeZoneSection(
          new TimeZoneSection(model, {m_services.zones, m_services.clock, model.locale()}, this)),
      m_formatSection(new FormatSection(model, m_services.popoverEffects, this)),
      m_previewSection(new PreviewSection(m_services.mainQueue, this)),
      m_actionBar(new ActionBar(m_services.mainQueue, this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addLayout(makeSections(), 1);
    column->addWidget(m_actionBar);
    addShortcuts();
    connectControls();
    refresh();
}

PopoverView::~PopoverView() = default;

void PopoverView::performCopy() {
    copyText(m_services.pasteboard, m_model.formattedOutput());
    m_actionBar->copyButton().confirm();
}

void PopoverView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        m_callbacks.onClose();
    else
        QWidget::keyPressEvent(event);
}

EntrySurroundings PopoverView::entrySurroundings() const {
    return {m_services.clock, m_services.currentZone, m_model.locale(), m_services.popoverEffects};
}

QVBoxLayout* PopoverView::makeSections() {
    auto* sections = new QVBoxLayout;
    constexpr int side = panelmetrics::sideMargin - panelmetrics::reach;
    sections->setContentsMargins(
        side, panelmetrics::sectionSpacing, side, panelmetrics::sectionSpacing);
    sections->setSpacing(panelmetrics::sectionSpacing);
    sections->addWidget(m_dateSection);
    sections->addWidget(m_timeZoneSection);
    sections->addWidget(m_formatSection);
    sections->addWidget(m_previewSection);
    sections->addStretch();
    return sections;
}

void PopoverView::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    const auto insert = [this] {
        m_actionBar->insertButton().click();
    };
    add(Qt::CTRL | Qt::Key_Return, insert);
    add(Qt::CTRL | Qt::Key_Enter, insert);
    add(Qt::CTRL | Qt::Key_Comma, [this] { m_callbacks.onShowPreferences(); });
    add(Qt::CTRL | Qt::Key_Q, [this] { m_callbacks.onQuit(); });
}

void PopoverView::connectControls() {
    connect(&m_model, &DateTimeModel::objectWillChange, this, [this] { m_refresh.schedule(); });
    connect(&m_actionBar->copyButton(), &CopyButton::clicked, this, &PopoverView::performCopy);
    connect(&m_actionBar->insertButton(), &ActionButton::clicked, this, [this] {
        m_callbacks.onInsert();
    });
}

void PopoverView::refresh() {
    m_header->setKeys(m_model.hotKey().displayKeys(m_services.keyboardLayout));
    m_dateSection->refresh();
    m_timeZoneSection->refresh();
    m_formatSection->refresh();
    refreshDownstream();
    m_previewSection->setOutput(m_model.formattedOutput());
}

void PopoverView::refreshDownstream() {
    const bool enabled = !downstreamDisabled();
    const std::initializer_list<QWidget*> downstream{
        m_formatSection, m_previewSection, m_actionBar};
    for (auto* section : downstream)
        section->setEnabled(enabled);
}

bool PopoverView::downstreamDisabled() const {
    return m_model.includeTime() && m_model.selectedTimeZones().empty();
}

} // namespace quorvane
