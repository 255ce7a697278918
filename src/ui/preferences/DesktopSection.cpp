// SPDX-License-Identifier: MIT
#include "DesktopSection.h"

#include <controls/WrappedText.h>
#include <preferences/PreferencesMetrics.h>

#include <QCoreApplication>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

namespace {

constexpr auto context = "quorvane::DesktopSection";

const char* nameOf(DesktopService service) {
    switch (service) {
    case DesktopService::Shortcut:
        return QT_TRANSLATE_NOOP("quorvane::DesktopSection", "Shortcut");
    case DesktopService::Typing:
        return QT_TRANSLATE_NOOP("quorvane::DesktopSection", "Insert");
    case DesktopService::Clipboard:
        return QT_TRANSLATE_NOOP("quorvane::DesktopSection", "Clipboard");
    case DesktopService::FrontWindow:
        return QT_TRANSLATE_NOOP("quorvane::DesktopSection", "Window in front");
    case DesktopService::Panel:
        return QT_TRANSLATE_NOOP("quorvane::DesktopSection", "Panel");
    case DesktopService::Tray:
        return QT_TRANSLATE_NOOP("quorvane::DesktopSection", "Tray icon");
    }
    return "";
}

void addRow(QVBoxLayout& column, const ServiceState& state, QWidget* parent) {
    const auto name = QCoreApplication::translate(context, nameOf(state.service));
    column.addSpacing(preferencesmetrics::rowSpacing);
    column.addWidget(new WrappedText(name, TextStyle::Body, WrappedText::Color::Primary, parent));
    column.addWidget(new WrappedText(
        state.explanation, TextStyle::Caption, WrappedText::Color::Secondary, parent));
}

} // namespace

DesktopSection::DesktopSection(QWidget* parent) : PreferencesSection(tr("This Desktop"), parent) {
}

bool DesktopSection::isWorthTelling(const std::vector<ServiceState>& states) {
    return std::ranges::any_of(states, [](const ServiceState& state) {
        return !state.isWhole && !state.explanation.isEmpty();
    });
}

void DesktopSection::setStates(const std::vector<ServiceState>& states) {
    if (m_rows != nullptr && states == m_states)
        return;
    m_states = states;
    delete m_rows;
    m_rows = new QWidget(this);
    auto* rows = new QVBoxLayout(m_rows);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    for (const auto& state : m_states) {
        if (!state.explanation.isEmpty())
            addRow(*rows, state, m_rows);
    }
    column().addWidget(m_rows);
}

} // namespace quorvane
