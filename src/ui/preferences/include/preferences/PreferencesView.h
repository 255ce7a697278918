// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>
#include <controls/PopoverEffects.h>
#include <hotkey/BindingLine.h>
#include <loop/CoalescedRefresh.h>
#include <loop/MainQueue.h>
#include <model/DateTimeModel.h>
#include <platform/AccessibilityRight.h>
#include <platform/Autostart.h>
#include <platform/DesktopShortcut.h>
#include <platform/KeyboardLayout.h>
#include <platform/ServiceState.h>
#include <preferences/PreferencesPlace.h>
#include <recorder/ShortcutRecorder.h>
#include <time/ZoneDatabase.h>

#include <QWidget>

#include <functional>

namespace quorvane {

class DesktopSection;
class FavoritesSection;
class GeneralSection;
class IconsSection;
class SectionColumn;
class ShortcutSection;
class TypingSection;

/// The settings that the main interface does not show: the shortcut, where the icon shows, how the
/// program begins, and the favourite zones. Changes take effect at once. As wide as its window is
/// to be; the list takes whatever height there is, and where that is too little everything scrolls.
class PreferencesView final : public QWidget {
    Q_OBJECT

public:
    /// What the view works with; all must outlive it.
    struct Dependencies {
        const KeyboardLayout& keyboardLayout;
        const ZoneDatabase& zones;
        MainQueue& mainQueue;
        const Clock& clock;
        Autostart& autostart;
        DesktopShortcut& desktopShortcut;
        const AccessibilityRight& accessibilityRight;
        const std::vector<ServiceState>& serviceStates;
        /// Whether the shortcut reaches the program; asked at each refresh.
        std::function<ShortcutRecorder::Status()> shortcutStatus;
        /// The user wants the desktop to ask about typing.
        std::function<void()> onAllowTyping;
        /// Puts a text on the clipboard, and says whether it did.
        std::function<bool(const QString&)> copy;
        PasteReader pasteReader = {};
        PopoverEffects popoverEffects = {};
        /// Whose words the line for a configuration is shown in first.
        BindingSyntax bindingSyntax = BindingSyntax::Command;
    };

    /// Puts a newly recorded shortcut into effect.
    using OnHotKeyChange = std::function<void(HotKeyCombo)>;

    PreferencesView(
        DateTimeModel& model,
        Dependencies dependencies,
        OnHotKeyChange onHotKeyChange,
        QWidget* parent = nullptr);
    ~PreferencesView() override;

    /// What the recorder shows: the model's shortcut when the view opens, then what is recorded.
    [[nodiscard]] HotKeyCombo editingCombo() const { return m_editingCombo; }

    /// Shows everything anew in a later event-loop iteration, for changes that the model does not
    /// announce: of the keyboard layout, of who holds the shortcut, and of the right to type.
    void refreshSoon() { m_refresh.schedule(); }

    /// Scrolls there, with the keyboard's focus on what is to be pressed; only while it is visible.
    void reveal(PreferencesPlace place);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void addDivider(int overhang);
    [[nodiscard]] QWidget* addOptional(QWidget* section);
    void reveal(QWidget& section, QWidget* focused);
    void focusFirst();
    void change(HotKeyCombo combo);
    void refresh();

    DateTimeModel& m_model;
    Dependencies m_dependencies;
    OnHotKeyChange m_onHotKeyChange;
    HotKeyCombo m_editingCombo;
    HotKeyCombo m_knownCombo; ///< the model's at the last refresh
    CoalescedRefresh m_refresh;

    SectionColumn* m_sections;
    ShortcutSection* m_shortcut;
    TypingSection* m_typing;
    IconsSection* m_icons;
    GeneralSection* m_general;
    DesktopSection* m_desktop;
    FavoritesSection* m_favorites;
    QWidget* m_typingPlace = nullptr;  ///< the section with its divider
    QWidget* m_desktopPlace = nullptr; ///< likewise
};

} // namespace quorvane
