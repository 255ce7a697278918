// SPDX-License-Identifier: MIT
#pragma once

#include <model/Composition.h>
#include <model/Preferences.h>
#include <settings/DefaultsStore.h>
#include <time/Clock.h>
#include <time/CurrentZone.h>
#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quorvane {

struct FormatSettings;

/// What the user composes, and the settings that survive a restart: the single source of truth of
/// the whole program.
///
/// Every assignment announces itself before the new value is in place, and every preference is
/// given to the store once it is, also when the new value equals the old one: an observer sees the
/// model change first, then the store. Nothing is stored at the end.
class DateTimeModel final : public QObject {
    Q_OBJECT

public:
    /// What is referred to must outlive the model.
    struct Dependencies {
        const Clock& clock;
        DefaultsStore& defaults;
        const CurrentZone& currentZone;
        const ZoneDatabase& zones;
        UserLocale locale;
    };

    /// Reads the settings, and writes the favourites back. A stored shortcut that cannot be one is
    /// ignored, with a line on standard error.
    explicit DateTimeModel(const Dependencies& dependencies, QObject* parent = nullptr);

    [[nodiscard]] Instant startDate() const { return m_composition.startDate; }

    [[nodiscard]] Instant endDate() const { return m_composition.endDate; }

    /// Whether either date is the user's: its day, hour or minute has been changed. It then stays
    /// as it is, while dates that nobody has entered are those of the next showing.
    [[nodiscard]] bool hasEnteredDate() const { return m_composition.hasEnteredDate; }

    [[nodiscard]] bool isRange() const { return m_composition.isRange; }

    [[nodiscard]] bool includeDate() const { return m_composition.includeDate; }

    [[nodiscard]] bool includeTime() const { return m_composition.includeTime; }

    [[nodiscard]] const std::vector<TimeZone>& selectedTimeZones() const {
        return m_composition.selectedTimeZones;
    }

    [[nodiscard]] DateFormatPreset formatPreset() const { return m_composition.formatPreset; }

    [[nodiscard]] const QString& customFormatString() const {
        return m_composition.customFormatString;
    }

    [[nodiscard]] MultiZoneLayout multiZoneLayout() const { return m_composition.multiZoneLayout; }

    [[nodiscard]] const QStringList& favoriteTimeZoneIdentifiers() const {
        return m_preferences.favoriteTimeZoneIdentifiers;
    }

    [[nodiscard]] HotKeyCombo hotKey() const { return m_preferences.hotKey; }

    [[nodiscard]] bool showInMenuBar() const { return m_preferences.showInMenuBar; }

    [[nodiscard]] bool showInDock() const { return m_preferences.showInDock; }

    [[nodiscard]] PresentationMode presentationMode() const {
        return m_preferences.presentationMode;
    }

    /// Whether format, layout, boxes and zones come back at the next start.
    [[nodiscard]] bool remembersChoices() const { return m_preferences.remembersChoices; }

    /// Whether the user has ever chosen to let the desktop ask about typing.
    [[nodiscard]] bool isShortcutHintDismissed() const {
        return m_preferences.shortcutHintDismissed;
    }

    [[nodiscard]] bool wantsTyping() const { return m_preferences.wantsTyping; }

    /// What the user has entered. Another minute makes the date the user's; the same one, with
    /// other seconds, does not.
    void setStartDate(Instant instant);
    /// Likewise; may be before the start.
    void setEndDate(Instant instant);

    /// Takes the start from the clock and moves the end along with it, unless either is the user's.
    void renewDates();

    /// The same on the user's request: it takes back what was entered.
    void returnToNow();

    void setIsRange(bool isRange);

    // These are stored as well while choices are remembered.
    void setIncludeDate(bool include);
    void setIncludeTime(bool include);
    void setSelectedTimeZones(std::vector<TimeZone> zones);
    void setFormatPreset(DateFormatPreset preset);
    void setCustomFormatString(const QString& pattern);
    void setMultiZoneLayout(MultiZoneLayout layout);

    // The preferences, which are stored.
    /// Identifiers need not name a zone.
    void setFavoriteTimeZoneIdentifiers(const QStringList& identifiers);
    void setHotKey(HotKeyCombo combo);
    void setShowInMenuBar(bool show);
    void setShowInDock(bool show);
    void setPresentationMode(PresentationMode mode);
    /// Switched on, it stores the choices as they are.
    void setRemembersChoices(bool remember);
    void setShortcutHintDismissed(bool dismissed);
    void setWantsTyping(bool wants);

    [[nodiscard]] const UserLocale& locale() const { return m_dependencies.locale; }

    /// The instant in the zone under the preset, with the flags and the pattern as they are now.
    [[nodiscard]] QString
    formatSingle(Instant instant, const TimeZone& zone, DateFormatPreset preset) const;

    /// Whether there is anything to deliver: a time is one in a zone. Otherwise there is nothing to
    /// copy and to insert.
    [[nodiscard]] bool isDeliverable() const;

    /// What the preview shows, Copy copies and Insert inserts; computed at each call.
    [[nodiscard]] QString formattedOutput() const;

    /// See composition/PresetList.h; the sample is the start in the first selected zone, else the
    /// current one.
    [[nodiscard]] std::vector<DateFormatPreset> availableFormatPresets() const;

    /// The one of these presets that stands for the chosen one: itself, or the one whose sample is
    /// the same; none if there is none.
    [[nodiscard]] std::optional<DateFormatPreset>
    equivalentFormatPreset(const std::vector<DateFormatPreset>& available) const;

    /// What the preset gives for the start, in the zone that availableFormatPresets() compares in.
    [[nodiscard]] QString sampleText(DateFormatPreset preset) const;

    /// Likewise for a pattern, whatever the preset and the pattern are.
    [[nodiscard]] QString patternSample(const QString& pattern) const;

    /// Changes the preset to the first available one if it is no longer available.
    void reconcileFormatPreset();

    /// See composition/ZoneSlots.h.
    [[nodiscard]] std::vector<TimeZone> timeZoneSlots() const;

Q_SIGNALS:
    /// A field is about to change; it still has its old value.
    void objectWillChange();

    /// After objectWillChange(), where it is the user who changes something: not the clock.
    void userWillChange();

    /// These carry the value to come, after objectWillChange() and likewise before it is in place.
    void showInMenuBarWillChange(bool show);
    void showInDockWillChange(bool show);
    void presentationModeWillChange(quorvane::PresentationMode mode);

private:
    template <typename T>
    void assign(T& field, T value);
    void assignDate(Instant& field, Instant value);
    template <typename Setting, typename Value>
    void remember(const Setting& setting, const Value& value);
    void announce();

    [[nodiscard]] TimeZone sampleZone() const;
    [[nodiscard]] FormatSettings formatSettings() const;

    Dependencies m_dependencies;

    Composition m_composition;
    Preferences m_preferences;
};

} // namespace quorvane
