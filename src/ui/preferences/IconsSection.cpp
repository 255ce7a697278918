// SPDX-License-Identifier: MIT
#include "IconsSection.h"

#include <controls/WrappedText.h>
#include <model/DateTimeModel.h>
#include <preferences/PreferencesMetrics.h>

#include <QVBoxLayout>

namespace quorvane {

namespace {

/// Has the overhang of the switches below it, so that what follows is as far from the text as from
/// a switch.
QWidget* makeNote(const QString& text, QWidget* parent) {
    auto* note = new QWidget(parent);
    auto* column = new QVBoxLayout(note);
    column->setContentsMargins(
        0, preferencesmetrics::captionSpacing - SwitchRow::overhang, 0, IconsSection::overhang);
    column->addWidget(new WrappedText(text, TextStyle::Caption, WrappedText::Color::Secondary));
    return note;
}

} // namespace

IconsSection::IconsSection(DateTimeModel& model, QWidget* parent)
    : PreferencesSection(tr("Tray & Taskbar"), parent),
      m_model(model),
      m_menuBar(new SwitchRow(tr("Show icon in system tray"), this)),
      m_dock(new SwitchRow(tr("Show windows in taskbar"), this)),
      m_note(makeNote(tr("Open Quorvane from the applications menu to reach Preferences."), this)) {
    column().addSpacing(preferencesmetrics::rowSpacing - SwitchRow::overhang);
    column().addWidget(m_menuBar);
    column().addSpacing(preferencesmetrics::rowSpacing - 2 * SwitchRow::overhang);
    column().addWidget(m_dock);
    column().addWidget(m_note);
    connect(m_menuBar, &SwitchRow::switched, &m_model, &DateTimeModel::setShowInMenuBar);
    connect(m_dock, &SwitchRow::switched, &m_model, &DateTimeModel::setShowInDock);
    refresh();
}

void IconsSection::refresh() {
    m_menuBar->setOn(m_model.showInMenuBar());
    m_dock->setOn(m_model.showInDock());
    m_note->setVisible(!m_model.showInMenuBar() && !m_model.showInDock());
}

} // namespace quorvane
