// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>
#include <entry/EntryDependencies.h>
#include <loop/CoalescedRefresh.h>
#include <loop/MainQueue.h>
#include <model/DateTimeModel.h>
#include <panel/PanelHint.h>
#include <platform/KeyboardLayout.h>
#include <platform/Pasteboard.h>
#include <time/ZoneDatabase.h>

#include <QWidget>

#include <functional>

namespace quorvane {

class ActionBar;
class DateSection;
class FormatSection;
class HintLine;
class PopoverHeader;
class PreviewSection;
class TimeZoneSection;

/// The interface of the program: what to compose, the live output, and the two ways to deliver it.
class PopoverView final : public QWidget {
    Q_OBJECT

public:
    /// What the view works with; all must outlive it.
    struct Dependencies {
        Pasteboard& pasteboard;
        const KeyboardLayout& keyboardLayout;
        const ZoneDatabase& zones;
        MainQueue& mainQueue;
        const Clock& clock;
        const CurrentZone& currentZone;
        PopoverEffects popoverEffects;
        PasteReader pasteReader = {};
    };

    /// What the view asks of its owner.
    struct Callbacks {
        std::function<void()> onInsert;
        std::function<void()> onShowPreferences;
        std::function<void()> onCheckForUpdates;
        std::function<void()> onClose;
        std::function<void()> onQuit;
        std::function<void()> onHintFollowed = {};  ///< to where it can be set up
        std::function<void()> onHintDismissed = {}; ///< for good
    };

    PopoverView(DateTimeModel& model, Dependencies dependencies, Callbacks callbacks);
    ~PopoverView() override;

    /// Shows everything anew in a later event-loop iteration, for changes that the model does not
    /// announce.
    void refreshSoon() { m_refresh.schedule(); }

    /// Shows everything anew before it is painted next.
    void refreshNow() { m_refresh.refreshNow(); }

    /// Puts the output on the pasteboard and says so on the button for a while.
    void performCopy();

    /// What people call the application that Insert types into; empty where nobody can tell.
    void setInsertTarget(const QString& name);

    /// What became of the last delivery, at the preview; empty for nothing to say.
    void setNotice(const QString& text);

    /// What the user has still to set up, below the header; empty for nothing to say.
    void setHint(const PanelHint& hint);

    /// Switches between the popover at the menu bar and the detached window.
    void togglePresentationMode();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] EntryDependencies entryDependencies() const;
    [[nodiscard]] PopoverHeader* makeHeader();
    void layOut();
    void addShortcuts();
    void connectControls();

    void copy(const QString& text);

    void refresh();
    void refreshDownstream();

    DateTimeModel& m_model;
    Dependencies m_dependencies;
    Callbacks m_callbacks;
    CoalescedRefresh m_refresh;

    PopoverHeader* m_header;
    HintLine* m_hint;
    DateSection* m_dateSection;
    TimeZoneSection* m_timeZoneSection;
    FormatSection* m_formatSection;
    PreviewSection* m_previewSection;
    ActionBar* m_actionBar;
};

} // namespace quorvane
