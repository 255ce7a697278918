// SPDX-License-Identifier: MIT
#include <composition/ComposedOutput.h>
#include <composition/FormatSingle.h>
#include <composition/PresetList.h>
#include <composition/ZoneSlots.h>
#include <model/DateTimeModel.h>
#include <model/RememberedChoices.h>
#include <settings/SettingsTable.h>
#include <time/CivilTime.h>
#include <time/DateText.h>

#include <utility>

namespace quorvane {

DateTimeModel::DateTimeModel(const Dependencies& dependencies, QObject* parent)
    : QObject(parent),
      m_dependencies(dependencies),
      m_composition(
          Composition::startingAt(dependencies.clock.now(), dependencies.currentZone.current())),
      m_preferences(Preferences::load(
          dependencies.defaults, dependencies.currentZone.current(), dependencies.zones)) {
    if (m_preferences.remembersChoices)
        rememberedchoices::recall(m_composition, dependencies.defaults, dependencies.zones);
    // Those of a first start stay when the user moves to another zone; not those that were made
    // without any zones to choose from.
    if (!dependencies.zones.hasData() && !setting::favoriteZones.storedIn(dependencies.defaults))
        return;
    setFavoriteTimeZoneIdentifiers(QStringList(m_preferences.favoriteTimeZoneIdentifiers));
}

template <typename T>
void DateTimeModel::assign(T& field, T value) {
    announce();
    field = std::move(value);
}

void DateTimeModel::assignDate(Instant& field, Instant value) {
    const auto zone = m_dependencies.currentZone.current();
    const bool isEntered = startOfMinute(value, zone) != startOfMinute(field, zone);
    assign(field, value);
    m_composition.hasEnteredDate |= isEntered;
}

template <typename Setting, typename Value>
void DateTimeModel::remember(const Setting& setting, const Value& value) {
    if (m_preferences.remembersChoices)
        setting.store(m_dependencies.defaults, value);
}

void DateTimeModel::announce() {
    Q_EMIT objectWillChange();
    Q_EMIT userWillChange();
}

void DateTimeModel::setStartDate(Instant instant) {
    assignDate(m_composition.startDate, instant);
}

void DateTimeModel::setEndDate(Instant instant) {
    assignDate(m_composition.endDate, instant);
}

void DateTimeModel::renewDates() {
    if (m_composition.hasEnteredDate)
        return;
    Q_EMIT objectWillChange();
    m_composition.moveTo(m_dependencies.clock.now(), m_dependencies.currentZone.current());
}

void DateTimeModel::returnToNow() {
    announce();
    m_composition.moveTo(m_dependencies.clock.now(), m_dependencies.currentZone.current());
}

void DateTimeModel::setIsRange(bool isRange) {
    assign(m_composition.isRange, isRange);
}

void DateTimeModel::setIncludeDate(bool include) {
    assign(m_composition.includeDate, include);
    remember(setting::includeDate, m_composition.includeDate);
}

void DateTimeModel::setIncludeTime(bool include) {
    assign(m_composition.includeTime, include);
    remember(setting::includeTime, m_composition.includeTime);
}

void DateTimeModel::setSelectedTimeZones(std::vector<TimeZone> zones) {
    assign(m_composition.selectedTimeZones, std::move(zones));
    remember(setting::selectedZones, rememberedchoices::zoneIdentifiers(m_composition));
}

void DateTimeModel::setFormatPreset(DateFormatPreset preset) {
    assign(m_composition.formatPreset, preset);
    remember(setting::formatPreset, rawValue(m_composition.formatPreset));
}

void DateTimeModel::setCustomFormatString(const QString& pattern) {
    assign(m_composition.customFormatString, pattern);
    remember(setting::customFormat, m_composition.customFormatString);
}

void DateTimeModel::setMultiZoneLayout(MultiZoneLayout layout) {
    assign(m_composition.multiZoneLayout, layout);
    remember(setting::multiZoneLayout, rawValue(m_composition.multiZoneLayout));
}

void DateTimeModel::setFavoriteTimeZoneIdentifiers(const QStringList& identifiers) {
    assign(m_preferences.favoriteTimeZoneIdentifiers, identifiers);
    setting::favoriteZones.store(
        m_dependencies.defaults, m_preferences.favoriteTimeZoneIdentifiers);
}

void DateTimeModel::setHotKey(HotKeyCombo combo) {
    assign(m_preferences.hotKey, combo);
    m_preferences.hotKey.save(m_dependencies.defaults);
}

void DateTimeModel::setShowInMenuBar(bool show) {
    announce();
    Q_EMIT showInMenuBarWillChange(show);
    m_preferences.showInMenuBar = show;
    setting::showInMenuBar.store(m_dependencies.defaults, m_preferences.showInMenuBar);
}

void DateTimeModel::setShowInDock(bool show) {
    announce();
    Q_EMIT showInDockWillChange(show);
    m_preferences.showInDock = show;
    setting::showInDock.store(m_dependencies.defaults, m_preferences.showInDock);
}

void DateTimeModel::setPresentationMode(PresentationMode mode) {
    announce();
    Q_EMIT presentationModeWillChange(mode);
    m_preferences.presentationMode = mode;
    setting::presentationMode.store(
        m_dependencies.defaults, rawValue(m_preferences.presentationMode));
}

void DateTimeModel::setRemembersChoices(bool remember) {
    assign(m_preferences.remembersChoices, remember);
    m_dependencies.defaults.setTogether([this] {
        setting::remembersChoices.store(m_dependencies.defaults, m_preferences.remembersChoices);
        if (m_preferences.remembersChoices)
            rememberedchoices::store(m_composition, m_dependencies.defaults);
    });
}

void DateTimeModel::setShortcutHintDismissed(bool dismissed) {
    assign(m_preferences.shortcutHintDismissed, dismissed);
    setting::shortcutHintDismissed.store(
        m_dependencies.defaults, m_preferences.shortcutHintDismissed);
}

void DateTimeModel::setWantsTyping(bool wants) {
    assign(m_preferences.wantsTyping, wants);
    setting::wantsTyping.store(m_dependencies.defaults, m_preferences.wantsTyping);
}

QString
DateTimeModel::formatSingle(Instant instant, const TimeZone& zone, DateFormatPreset preset) const {
    return quorvane::formatSingle(instant, zone, preset, formatSettings());
}

bool DateTimeModel::isDeliverable() const {
    return !m_composition.includeTime || !m_composition.selectedTimeZones.empty();
}

QString DateTimeModel::formattedOutput() const {
    const OutputRequest request{
        .preset = m_composition.formatPreset,
        .settings = formatSettings(),
        .zones = m_composition.selectedTimeZones,
        .start = m_composition.startDate,
        .end = m_composition.isRange ? std::optional(m_composition.endDate) : std::nullopt,
        .layout = m_composition.multiZoneLayout};
    return composedOutput(request, m_dependencies.currentZone);
}

std::vector<DateFormatPreset> DateTimeModel::availableFormatPresets() const {
    return quorvane::availableFormatPresets(
        m_composition.startDate, sampleZone(), formatSettings());
}

std::optional<DateFormatPreset>
DateTimeModel::equivalentFormatPreset(const std::vector<DateFormatPreset>& available) const {
    return quorvane::equivalentFormatPreset(
        m_composition.formatPreset,
        available,
        m_composition.startDate,
        sampleZone(),
        formatSettings());
}

QString DateTimeModel::sampleText(DateFormatPreset preset) const {
    return formatSingle(m_composition.startDate, sampleZone(), preset);
}

QString DateTimeModel::patternSample(const QString& pattern) const {
    return patternText(m_composition.startDate, sampleZone(), pattern, m_dependencies.locale);
}

void DateTimeModel::reconcileFormatPreset() {
    const auto reconciled =
        reconciledFormatPreset(m_composition.formatPreset, availableFormatPresets());
    if (reconciled != m_composition.formatPreset)
        setFormatPreset(reconciled);
}

std::vector<TimeZone> DateTimeModel::timeZoneSlots() const {
    return quorvane::timeZoneSlots(
        m_preferences.favoriteTimeZoneIdentifiers,
        m_composition.selectedTimeZones,
        m_dependencies.zones);
}

TimeZone DateTimeModel::sampleZone() const {
    return m_composition.selectedTimeZones.empty() ? m_dependencies.currentZone.current()
                                                   : m_composition.selectedTimeZones.front();
}

FormatSettings DateTimeModel::formatSettings() const {
    return {
        m_composition.includeDate,
        m_composition.includeTime,
        m_composition.customFormatString,
        m_dependencies.locale};
}

} // namespace quorvane
