// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QEvent>
#include <QWindow>

#include <utility>
#include <wayland_sway/SwayCommands.h>
#include <wayland_sway/SwayWindowTraits.h>

namespace quorvane {

namespace {

SwayCriteria criteriaOf(const QWindow& window) {
    return {QCoreApplication::applicationPid(), window.title()};
}

} // namespace

SwayWindowTraits::SwayWindowTraits(std::shared_ptr<SwayLink> link) : m_link(std::move(link)) {
    m_link->onNamedWindow([this](const SwayWindow& window) { handleNamedWindow(window); });
}

SwayWindowTraits::~SwayWindowTraits() {
    m_link->onNamedWindow({});
}

void SwayWindowTraits::preparePanel(QWindow& window) {
    follow(window);
    m_place = window.position();
    setRule(swayRuleToMove(criteriaOf(window), m_place));
}

void SwayWindowTraits::presentPanel(QWindow& window) {
    // Of use for one that shows already; a new one is told of when sway has it.
    m_link->command(swayFocus(criteriaOf(window)));
}

void SwayWindowTraits::activate(QWindow& window) {
    window.raise();
    window.requestActivate();
    m_link->command(swayFocus(criteriaOf(window)));
}

bool SwayWindowTraits::eventFilter(QObject* watched, QEvent* event) {
    // The pointer goes for as long as it drags the window, which sway says nothing of. Where both
    // come at once, to a busy program, Qt makes one leave of them.
    const auto type = event->type();
    const bool mayHaveMoved =
        type == QEvent::Enter || type == QEvent::Leave || type == QEvent::FocusOut;
    if (watched == m_panel && mayHaveMoved)
        askPlace();
    return false;
}

void SwayWindowTraits::setRule(const QString& rule) {
    // They add up.
    if (std::exchange(m_rule, rule) != rule)
        m_link->command(rule);
}

void SwayWindowTraits::follow(QWindow& panel) {
    if (m_panel == &panel)
        return;
    m_panel = &panel;
    panel.installEventFilter(this);
    m_link->command(swayRuleToFloat(criteriaOf(panel)));
    m_link->command(swayRuleToStick(criteriaOf(panel)));
    connect(&panel, &QWindow::xChanged, this, &SwayWindowTraits::tellPlace);
    connect(&panel, &QWindow::yChanged, this, &SwayWindowTraits::tellPlace);
}

void SwayWindowTraits::handleNamedWindow(const SwayWindow& window) {
    if (window.pid == QCoreApplication::applicationPid() && m_panel &&
        window.title == m_panel->title() && !window.isFocused)
        m_link->command(swayFocus(criteriaOf(*m_panel)));
}

void SwayWindowTraits::tellPlace() {
    if (!m_panel || !m_panel->isVisible() || m_panel->position() == m_place)
        return;
    m_place = m_panel->position();
    m_link->command(swayMove(criteriaOf(*m_panel), m_place));
}

void SwayWindowTraits::askPlace() {
    m_link->askTree([self = QPointer(this)](const QByteArray& tree) {
        if (self)
            self->takePlace(tree);
    });
}

void SwayWindowTraits::takePlace(const QByteArray& tree) {
    if (!m_panel || !m_panel->isVisible())
        return;
    const auto criteria = criteriaOf(*m_panel);
    const auto window = windowIn(tree, criteria.pid, criteria.title);
    if (!window || window->frame.topLeft() == m_place)
        return;
    m_place = window->frame.topLeft();
    m_panel->setPosition(m_place);
}

} // namespace quorvane
