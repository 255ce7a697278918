// SPDX-License-Identifier: MIT
#pragma once

#include <composition/DateFormatPreset.h>
#include <composition/MultiZoneLayout.h>
#include <hotkey/HotKeyCombo.h>
#include <model/PresentationMode.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <settings/DefaultsStore.h>
#include <time/Clock.h>
#include <time/CurrentZone.h>
#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>
#include <vector>

namespace quorvane {

struct FormatSettings;

/// What the user composes, and the settings that survive a restart: the single source of truth of
/// the whole program.
///
/// Every assignment announces itself before the new value is in place, and every persisted field is
/// written once it is, also when the new value equals the old one. Nothing is written at the end.
class DateTimeModel final : public QObject {
    Q_OBJECT

public:
    /// What is referred to must outlive the model.
    struct Surroundings {
        const Clock& clock;
        DefaultsStore& defaults;
        const CurrentZone& currentZone;
        const ZoneDatabase& zones;
        UserLocale locale;
    };

    static constexpr QLatin1StringView favoritesKey{"favoriteTZs"};
    static constexpr QLatin1StringView showInMenuBarKey{"showInMenuBar"};
    static constexpr QLatin1StringView showInDockKey{"showInDock"};
    static constexpr QLatin1StringView presentationModeKey{"presentationMode"};

    /// Reads the settings, and writes the favourites back. A stored shortcut that is out of range
    /// stops the process.
    explicit DateTimeModel(const Surroundings& surroundings, QObject* parent = nullptr);

    [[nodiscard]] Instant startDate() const { return m_startDate; }

    [[nodiscard]] Instant endDate() const { return m_endDate; }

    [[nodiscard]] bool isRange() const { return m_isRange; }

    [[nodiscard]] bool includeDate() const { return m_includeDate; }

    [[nodiscard]] bool includeTime() const { return m_includeTime; }

    [[nodiscard]] const std::vector<TimeZone>& selectedTimeZones() const {
        return m_selectedTimeZones;
    }

    [[nodiscard]] DateFormatPreset formatPreset() const { return m_formatPreset; }

    [[nodiscard]] const QString& customFormatString() const { return m_customFormatString; }

    [[nodiscard]] MultiZoneLayout multiZoneLayout() const { return m_multiZoneLayout; }

    [[nodiscard]] const QStringList& favoriteTimeZoneIdentifiers() const {
        return m_favoriteTimeZoneIdentifiers;
    }

    [[nodiscard]] HotKeyCombo hotKey() const { return m_hotKey; }

    [[nodiscard]] bool showInMenuBar() const { return m_showInMenuBar; }

    [[nodiscard]] bool showInDock() const { return m_showInDock; }

    [[nodiscard]] PresentationMode presentationMode() const { return m_presentationMode; }

    void setStartDate(Instant instant);
    /// May be before the start.
    void setEndDate(Instant instant);
    void setIsRange(bool isRange);
    void setIncludeDate(bool include);
    void setIncludeTime(bool include);
    void setSelectedTimeZones(std::vector<TimeZone> zones);
    void setFormatPreset(DateFormatPreset preset);
    void setCustomFormatString(const QString& pattern);
    void setMultiZoneLayout(MultiZoneLayout layout);
    /// Persisted; identifiers need not name a zone.
    void setFavoriteTimeZoneIdentifiers(const QStringList& identifiers);
    /// Not persisted here: whoever changes the shortcut saves it together with the monitor's.
    void setHotKey(HotKeyCombo combo);
    void setShowInMenuBar(bool show);                ///< persisted
    void setShowInDock(bool show);                   ///< persisted
    void setPresentationMode(PresentationMode mode); ///< persisted

    [[nodiscard]] const UserLocale& locale() const { return m_surroundings.locale; }

    /// The instant in the zone under the preset, with the flags and the pattern as they are now.
    [[nodiscard]] QString
    formatSingle(Instant instant, const TimeZone& zone, DateFormatPreset preset) const;

    /// What the preview shows, Copy copies and Insert inserts; computed at each call.
    [[nodiscard]] QString formattedOutput() const;

    /// See composition/PresetList.h; the sample is the start in the first selected zone, else the
    /// current one.
    [[nodiscard]] std::vector<DateFormatPreset> availableFormatPresets() const;

    /// Changes the preset to the first available one if it is no longer available.
    void reconcileFormatPreset();

    /// See composition/ZoneSlots.h.
    [[nodiscard]] std::vector<TimeZone> timeZoneSlots() const;

Q_SIGNALS:
    /// A field is about to change; it still has its old value.
    void objectWillChange();

    /// These carry the value to come, after objectWillChange() and likewise before it is in place.
    void showInMenuBarWillChange(bool show);
    void showInDockWillChange(bool show);
    void presentationModeWillChange(quorvane::PresentationMode mode);

private:
    template <typename T>
    void assign(T& field, T value);

    void loadSettings();
    [[nodiscard]] QStringList storedFavorites() const;
    [[nodiscard]] TimeZone sampleZone() const;
    [[nodiscard]] FormatSettings formatSettings() const;

    Surroundings m_surroundings;

    Instant m_startDate;
    Instant m_endDate;
    bool m_isRange = false;
    bool m_includeDate = true;
    bool m_includeTime = true;
    std::vector<TimeZone> m_selectedTimeZones;
    DateFormatPreset m_formatPreset = DateFormatPreset::LongForm;
    QString m_customFormatString;
    MultiZoneLayout m_multiZoneLayout = MultiZoneLayout::Inline;
    QStringList m_favoriteTimeZoneIdentifiers;
    HotKeyCombo m_hotKey;
    bool m_showInMenuBar = true;
    bool m_showInDock = false;
    PresentationMode m_presentationMode = PresentationMode::Window;
};

} // namespace quorvane
