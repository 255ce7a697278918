// SPDX-License-Identifier: MIT
#include <ui/PreferencesView.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace quorvane {

PreferencesView::PreferencesView(
    DateTimeModel& model, const KeyboardLayout& layout, MainQueue& queue)
    : m_model(model),
      m_keyboardLayout(layout),
      m_refresh(queue, [this] { refresh(); }),
      m_keys(new QLabel(this)),
      m_showInDock(new QCheckBox(this)) {
    m_showInDock->setText(tr("Show icon in Dock (poorly supported — use at own annoyance)"));
    auto* form = new QFormLayout(this);
    form->addRow(tr("Invoke Quorvane"), m_keys);
    form->addRow(m_showInDock);
    connect(&m_model, &DateTimeModel::objectWillChange, this, [this] { m_refresh.schedule(); });
    connect(m_showInDock, &QCheckBox::toggled, &m_model, &DateTimeModel::setShowInDock);
    refresh();
}

void PreferencesView::refresh() {
    m_keys->setText(m_model.hotKey().displayKeys(m_keyboardLayout).join(u' '));
    const QSignalBlocker blocker(m_showInDock);
    m_showInDock->setChecked(m_model.showInDock());
}

} // namespace quorvane
