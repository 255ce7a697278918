// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>
#include <platform/DesktopShortcut.h>

#include <QWidget>

#include <functional>

namespace quorvane {

class PushButton;
class WrappedText;

/// How the shortcut stands in the desktop's own list, and what the user can do about it: add it,
/// give our entry the shortcut that is recorded, take it out, or record another one where a command
/// of the desktop has this one.
class ListedShortcut final : public QWidget {
    Q_OBJECT

public:
    /// Both references must outlive it; `combo` is the shortcut that is recorded.
    ListedShortcut(
        DesktopShortcut& list,
        std::function<HotKeyCombo()> combo,
        const KeyboardLayout& layout,
        QWidget* parent);

    /// Shows what the list was read to hold last.
    void refresh();

    /// The button to press first; null where there is nothing left to do.
    [[nodiscard]] QWidget* offer() const;

Q_SIGNALS:
    /// The user wants another shortcut.
    void recordRequested();

private:
    enum class State { Absent, Bound, OtherKeys, Taken };

    [[nodiscard]] State state() const;
    [[nodiscard]] QString statusText(State state) const;
    [[nodiscard]] QString offerText(State state) const;
    void show(bool offers, bool removes);
    void say(const QString& status);
    void takeOffer();

    DesktopShortcut& m_list;
    std::function<HotKeyCombo()> m_combo;
    const KeyboardLayout& m_layout;
    WrappedText* m_status;
    PushButton* m_offer;
    PushButton* m_remove;
};

} // namespace quorvane
