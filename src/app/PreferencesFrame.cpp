// SPDX-License-Identifier: MIT
#include "PreferencesFrame.h"

#include "PanelPlacement.h"
#include "Screens.h"

#include <QEvent>
#include <QScreen>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto frameName = u"Preferences"_s;

constexpr Seconds saveDelay{0.5}; // a drag is many changes

} // namespace

PreferencesFrame::PreferencesFrame(QWidget& window, Dependencies dependencies)
    : m_window(window),
      m_dependencies(dependencies),
      m_userMoves(window, dependencies.queue, dependencies.windowTraits),
      m_usersFrame(dependencies.frames.frame(frameName)) {
    window.installEventFilter(this);
}

void PreferencesFrame::place() {
    if (m_window.isVisible())
        return;
    m_hasAskedAgain = false;
    request(home());
}

void PreferencesFrame::saveNow() {
    if (m_saving)
        save();
}

bool PreferencesFrame::eventFilter(QObject*, QEvent* event) {
    const bool isChange = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (isChange && m_window.isVisible())
        handleFrameChanged();
    return false;
}

QRect PreferencesFrame::home() const {
    if (m_usersFrame && panelplacement::touchesAny(*m_usersFrame, screens::availableAreas()))
        return *m_usersFrame;
    const auto& screen = screens::mainScreen(m_dependencies.workspace);
    return panelplacement::centred(m_window.size(), screen.availableGeometry());
}

void PreferencesFrame::request(const QRect& frame) {
    m_requested = frame;
    m_userMoves.noteRequest();
    m_window.setGeometry(frame);
}

void PreferencesFrame::handleFrameChanged() {
    const auto frame = m_window.geometry();
    if (frame == m_requested)
        return;
    if (m_userMoves.causeOfChange() == UserMoves::Cause::User) {
        m_usersFrame = m_requested = frame;
        m_asking.reset();
        if (m_dependencies.windowTraits.placesWindows())
            m_saving = m_dependencies.queue.after(saveDelay, [this] { save(); });
        return;
    }
    if (!m_userMoves.hasSettled() && !std::exchange(m_hasAskedAgain, true))
        m_asking = m_dependencies.queue.after(
            Seconds(0), [this, wanted = m_requested] { request(wanted); });
}

void PreferencesFrame::save() {
    m_saving.reset();
    m_dependencies.frames.setFrame(frameName, *m_usersFrame);
}

} // namespace quorvane
