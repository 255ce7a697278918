// SPDX-License-Identifier: MIT
#include "ShortcutHint.h"

#include <hotkey/ShortcutChord.h>
#include <recorder/KeyNames.h>

#include <QCoreApplication>

#include <utility>

namespace quorvane {

using Activity = ShortcutRecorder::Activity;

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("quorvane::ShortcutHint", text);
}

} // namespace

ShortcutHint::ShortcutHint(Dependencies dependencies, Show show)
    : m_dependencies(dependencies),
      m_show(std::move(show)) {
}

void ShortcutHint::begin() {
    m_beginning = m_dependencies.queue.after(patience, [this] {
        m_hasBegun = true;
        refresh();
    });
    refresh();
}

void ShortcutHint::refresh() {
    const bool isKnown = m_hasBegun || m_dependencies.shortcut.activity() == Activity::Active;
    m_show(isKnown && !m_dependencies.model.isShortcutHintDismissed() ? hint() : PanelHint());
}

void ShortcutHint::dismiss() {
    m_dependencies.model.setShortcutHintDismissed(true);
    refresh();
}

void ShortcutHint::noteCall() {
    const bool mayBeBound =
        m_dependencies.list.bound() || m_dependencies.list.desktopName().isEmpty();
    if (isUnavailable() && mayBeBound)
        notePress();
}

void ShortcutHint::notePress() {
    if (!m_dependencies.model.isShortcutHintDismissed())
        dismiss();
}

bool ShortcutHint::isUnavailable() const {
    return m_dependencies.shortcut.activity() == Activity::Unavailable;
}

PanelHint ShortcutHint::hint() const {
    const auto& layout = m_dependencies.layout;
    const auto bound = m_dependencies.list.bound();
    if (m_dependencies.shortcut.activity() == Activity::Active)
        return hintOf(shortcutText(m_dependencies.model.hotKey(), layout));
    if (isUnavailable() && bound)
        return hintOf(shortcutText(comboOf(*bound), layout));
    return hintWithoutShortcut();
}

PanelHint ShortcutHint::hintOf(const QString& shortcut) {
    return {
        translated(
            QT_TRANSLATE_NOOP("quorvane::ShortcutHint", "%1 opens Quorvane in any application."))
            .arg(shortcut),
        translated(QT_TRANSLATE_NOOP("quorvane::ShortcutHint", "Change…"))};
}

PanelHint ShortcutHint::hintWithoutShortcut() const {
    const auto text = isUnavailable()
                          ? translated(QT_TRANSLATE_NOOP(
                                "quorvane::ShortcutHint", "No shortcut opens Quorvane yet."))
                          : translated(QT_TRANSLATE_NOOP(
                                "quorvane::ShortcutHint",
                                "The shortcut that opens Quorvane does not work here."));
    return {text, translated(QT_TRANSLATE_NOOP("quorvane::ShortcutHint", "Set Up…"))};
}

} // namespace quorvane
