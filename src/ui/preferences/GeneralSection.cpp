// SPDX-License-Identifier: MIT
#include "GeneralSection.h"

#include <controls/Announcement.h>
#include <controls/WrappedText.h>
#include <model/DateTimeModel.h>
#include <platform/Autostart.h>
#include <preferences/PreferencesMetrics.h>

#include <QVBoxLayout>

namespace quorvane {

GeneralSection::GeneralSection(DateTimeModel& model, Autostart& autostart, QWidget* parent)
    : PreferencesSection(tr("General"), parent),
      m_model(model),
      m_autostart(autostart),
      m_startAtLogin(autostart.isAvailable() ? new SwitchRow(tr("Start at login"), this) : nullptr),
      m_loginCaption(new WrappedText({}, TextStyle::Caption, WrappedText::Color::Secondary, this)),
      m_remember(new SwitchRow(tr("Remember format and zones"), this)) {
    if (m_startAtLogin != nullptr) {
        add(m_startAtLogin);
        column().addWidget(m_loginCaption);
        connect(
            m_startAtLogin, &SwitchRow::switched, this, [this](bool on) { m_autostart.setOn(on); });
    }
    m_autostart.onChanged([this] { refresh(); });
    add(m_remember);
    connect(m_remember, &SwitchRow::switched, &m_model, &DateTimeModel::setRemembersChoices);
    refresh();
}

GeneralSection::~GeneralSection() {
    m_autostart.onChanged({});
}

void GeneralSection::refresh() {
    if (m_startAtLogin != nullptr)
        m_startAtLogin->setOn(m_autostart.isOn());
    sayOfLogin(loginCaption());
    m_remember->setOn(m_model.remembersChoices());
}

QString GeneralSection::loginCaption() const {
    switch (m_autostart.request()) {
    case Autostart::Request::Settled:
        break;
    case Autostart::Request::Asked:
        return tr("Waiting for your answer");
    case Autostart::Request::Refused:
        return tr("Your desktop did not allow this.");
    }
    return {};
}

void GeneralSection::sayOfLogin(const QString& caption) {
    const bool isNew = m_loginCaption->text() != caption;
    m_loginCaption->setText(caption);
    m_loginCaption->setVisible(!caption.isEmpty());
    if (isNew && isVisible() && !caption.isEmpty())
        announce(*m_loginCaption, caption);
}

void GeneralSection::add(SwitchRow* row) {
    column().addSpacing(preferencesmetrics::rowSpacing - m_below - SwitchRow::overhang);
    column().addWidget(row);
    m_below = SwitchRow::overhang;
}

} // namespace quorvane
