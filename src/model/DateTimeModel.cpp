// SPDX-License-Identifier: MIT
#include <composition/ComposedOutput.h>
#include <composition/DefaultFavorites.h>
#include <composition/FormatSingle.h>
#include <composition/PresetList.h>
#include <composition/ZoneSlots.h>
#include <model/DateTimeModel.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds initialSpan = std::chrono::hours(1);

} // namespace

DateTimeModel::DateTimeModel(const Surroundings& surroundings, QObject* parent)
    : QObject(parent),
      m_surroundings(surroundings),
      m_startDate(surroundings.clock.now()),
      m_endDate(surroundings.clock.now() + initialSpan),
      m_selectedTimeZones{surroundings.currentZone.current()},
      m_customFormatString(u"yyyy-MM-dd HH:mm zzz"_s) {
    loadSettings();
}

template <typename T>
void DateTimeModel::assign(T& field, T value) {
    Q_EMIT objectWillChange();
    field = std::move(value);
}

void DateTimeModel::setStartDate(Instant instant) {
    assign(m_startDate, instant);
}

void DateTimeModel::setEndDate(Instant instant) {
    assign(m_endDate, instant);
}

void DateTimeModel::setIsRange(bool isRange) {
    assign(m_isRange, isRange);
}

void DateTimeModel::setIncludeDate(bool include) {
    assign(m_includeDate, include);
}

void DateTimeModel::setIncludeTime(bool include) {
    assign(m_includeTime, include);
}

void DateTimeModel::setSelectedTimeZones(std::vector<TimeZone> zones) {
    assign(m_selectedTimeZones, std::move(zones));
}

void DateTimeModel::setFormatPreset(DateFormatPreset preset) {
    assign(m_formatPreset, preset);
}

void DateTimeModel::setCustomFormatString(const QString& pattern) {
    assign(m_customFormatString, pattern);
}

void DateTimeModel::setMultiZoneLayout(MultiZoneLayout layout) {
    assign(m_multiZoneLayout, layout);
}

void DateTimeModel::setFavoriteTimeZoneIdentifiers(const QStringList& identifiers) {
    assign(m_favoriteTimeZoneIdentifiers, identifiers);
    m_surroundings.defaults.setStringArray(favoritesKey, m_favoriteTimeZoneIdentifiers);
}

void DateTimeModel::setHotKey(HotKeyCombo combo) {
    assign(m_hotKey, combo);
}

void DateTimeModel::setShowInMenuBar(bool show) {
    Q_EMIT objectWillChange();
    Q_EMIT showInMenuBarWillChange(show);
    m_showInMenuBar = show;
    m_surroundings.defaults.setBool(showInMenuBarKey, m_showInMenuBar);
}

void DateTimeModel::setShowInDock(bool show) {
    Q_EMIT objectWillChange();
    Q_EMIT showInDockWillChange(show);
    m_showInDock = show;
    m_surroundings.defaults.setBool(showInDockKey, m_showInDock);
}

void DateTimeModel::setPresentationMode(PresentationMode mode) {
    Q_EMIT objectWillChange();
    Q_EMIT presentationModeWillChange(mode);
    m_presentationMode = mode;
    m_surroundings.defaults.setString(presentationModeKey, rawValue(m_presentationMode));
}

QString
DateTimeModel::formatSingle(Instant instant, const TimeZone& zone, DateFormatPreset preset) const {
    return quorvane::formatSingle(instant, zone, preset, formatSettings());
}

QString DateTimeModel::formattedOutput() const {
    const OutputRequest request{
        .preset = m_formatPreset,
        .settings = formatSettings(),
        .zones = m_selectedTimeZones,
        .start = m_startDate,
        .end = m_isRange ? std::optional(m_endDate) : std::nullopt,
        .layout = m_multiZoneLayout};
    return composedOutput(request, m_surroundings.currentZone);
}

std::vector<DateFormatPreset> DateTimeModel::availableFormatPresets() const {
    return quorvane::availableFormatPresets(m_startDate, sampleZone(), formatSettings());
}

void DateTimeModel::reconcileFormatPreset() {
    const auto reconciled = reconciledFormatPreset(m_formatPreset, availableFormatPresets());
    if (reconciled != m_formatPreset)
        setFormatPreset(reconciled);
}

std::vector<TimeZone> DateTimeModel::timeZoneSlots() const {
    return quorvane::timeZoneSlots(
        m_favoriteTimeZoneIdentifiers, m_selectedTimeZones, m_surroundings.zones);
}

void DateTimeModel::loadSettings() {
    const auto& defaults = m_surroundings.defaults;
    m_hotKey = HotKeyCombo::load(defaults);
    m_showInMenuBar = !defaults.hasValue(showInMenuBarKey) || defaults.boolForKey(showInMenuBarKey);
    m_showInDock = defaults.boolForKey(showInDockKey);
    const auto storedMode = defaults.stringForKey(presentationModeKey).value_or(QString());
    m_presentationMode = quorvane::presentationMode(storedMode).value_or(PresentationMode::Window);
    setFavoriteTimeZoneIdentifiers(storedFavorites());
}

QStringList DateTimeModel::storedFavorites() const {
    auto stored = m_surroundings.defaults.stringArrayForKey(favoritesKey);
    if (stored)
        return *std::move(stored);
    return defaultFavoriteIdentifiers(m_surroundings.currentZone.current(), m_surroundings.zones);
}

TimeZone DateTimeModel::sampleZone() const {
    return m_selectedTimeZones.empty() ? m_surroundings.currentZone.current()
                                       : m_selectedTimeZones.front();
}

FormatSettings DateTimeModel::formatSettings() const {
    return {m_includeDate, m_includeTime, m_customFormatString, m_surroundings.locale};
}

} // namespace quorvane
