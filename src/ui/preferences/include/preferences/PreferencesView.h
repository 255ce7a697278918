// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>
#include <loop/CoalescedRefresh.h>
#include <loop/MainQueue.h>
#include <model/DateTimeModel.h>
#include <platform/Autostart.h>
#include <platform/KeyboardLayout.h>
#include <recorder/ShortcutRecorder.h>
#include <time/ZoneDatabase.h>

#include <QWidget>

#include <functional>

namespace quorvane {

class FavoritesSection;
class GeneralSection;
class IconsSection;
class SectionColumn;
class ShortcutSection;

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
        /// Whether the shortcut reaches the program; asked at each refresh.
        std::function<ShortcutRecorder::Status()> shortcutStatus;
        PasteReader pasteReader = {};
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
    /// announce: of the keyboard layout, and of who holds the shortcut.
    void refreshSoon() { m_refresh.schedule(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void addDivider(SectionColumn& column, int overhang);
    void change(HotKeyCombo combo);
    void refresh();

    DateTimeModel& m_model;
    Dependencies m_dependencies;
    OnHotKeyChange m_onHotKeyChange;
    HotKeyCombo m_editingCombo;
    CoalescedRefresh m_refresh;

    ShortcutSection* m_shortcut;
    IconsSection* m_icons;
    GeneralSection* m_general;
    FavoritesSection* m_favorites;
};

} // namespace quorvane
