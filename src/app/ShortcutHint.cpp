// SPDX-License-Identifier: MIT
#include "ShortcutHint.h"

#include <QCoreApplication>

#include <utility>

namespace quorvane {

ShortcutHint::ShortcutHint(Dependencies dependencies, Show show)
    : m_dependencies(dependencies),
      m_show(std::move(show)) {
}

void ShortcutHint::begin() {
    m_beginning = m_dependencies.queue.after(patience, [this] {
        m_hasBegun = true;
        refresh();
    });
}

void ShortcutHint::refresh() {
    if (!m_hasBegun)
        return;
    m_show(
        isNeeded() ? QCoreApplication::translate(
                         "quorvane::ShortcutHint", "No shortcut opens Quorvane yet.")
                   : QString());
}

void ShortcutHint::dismiss() {
    m_dependencies.model.setShortcutHintDismissed(true);
    refresh();
}

void ShortcutHint::noteCall() {
    if (isNeeded() && m_dependencies.list.desktopName().isEmpty())
        dismiss();
}

bool ShortcutHint::isNeeded() const {
    return !m_dependencies.model.isShortcutHintDismissed() &&
           m_dependencies.shortcut.activity() == ShortcutRecorder::Activity::Unavailable &&
           !m_dependencies.list.bound();
}

} // namespace quorvane
