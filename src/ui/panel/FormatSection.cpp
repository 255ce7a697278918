// SPDX-License-Identifier: MIT
#include "FormatSection.h"

#include "PatternEntry.h"

#include <controls/MacPopUpButton.h>
#include <controls/MacSegmentedControl.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

namespace {

constexpr int layoutWidth = 160;
constexpr int layoutGap = 8;

} // namespace

FormatSection::FormatSection(
    DateTimeModel& model, const PopoverEffects& effects, PasteReader pasteReader, QWidget* parent)
    : Section(tr("Format"), Symbol::TextformatAlt, parent),
      m_model(model),
      m_preset(new MacPopUpButton(effects, this)),
      m_layout(new MacSegmentedControl(this)),
      m_presetChoice(
          *m_preset,
          {allDateFormatPresets.begin(), allDateFormatPresets.end()},
          [](const DateFormatPreset& preset) { return translatedLabel(preset); },
          {[&model] { return model.formatPreset(); },
           [&model](DateFormatPreset preset) {
               model.setFormatPreset(preset);
           }}),
      m_layoutChoice(
          *m_layout,
          {allMultiZoneLayouts.begin(), allMultiZoneLayouts.end()},
          [](const MultiZoneLayout& layout) { return translatedLabel(layout); },
          {[&model] { return model.multiZoneLayout(); },
           [&model](MultiZoneLayout layout) {
               model.setMultiZoneLayout(layout);
           }}),
      m_pattern(new PatternEntry(
          effects,
          std::move(pasteReader),
          [&model](const QString& pattern) { return model.patternSample(pattern); },
          this)) {
    m_preset->setLabel(tr("Format"));
    m_preset->setRenewal([this] { offerPresets(); });
    m_preset->setSamples([this] { return presetSamples(); });
    connect(m_preset, &MacPopUpButton::chosenInList, this, &FormatSection::enterPatternIfCustom);
    m_layout->setLabel(tr("Layout"));
    m_layout->setFixedWidth(layoutWidth);
    connect(m_pattern, &PatternEntry::edited, &m_model, &DateTimeModel::setCustomFormatString);
    layOut();
}

void FormatSection::refresh() {
    // Which presets differ takes the text of each: half the texts of a show.
    if (m_preset->isOpen())
        offerPresets();
    else
        m_presetChoice.refresh();
    m_layoutChoice.refresh();
    m_layout->setVisible(m_model.includeTime() && m_model.selectedTimeZones().size() > 1);
    m_pattern->setVisible(m_model.formatPreset() == DateFormatPreset::Custom);
    m_pattern->setPattern(m_model.customFormatString());
}

void FormatSection::offerPresets() {
    const auto offered = m_model.availableFormatPresets();
    m_presetChoice.setItems(offered, m_model.equivalentFormatPreset(offered));
}

QStringList FormatSection::presetSamples() const {
    QStringList samples;
    for (const auto preset : m_model.availableFormatPresets())
        samples.append(m_model.sampleText(preset));
    return samples;
}

// Who chooses "Custom…" goes on to the pattern; it shows already while the keys come.
void FormatSection::enterPatternIfCustom() {
    if (m_model.formatPreset() != DateFormatPreset::Custom)
        return;
    refresh();
    m_pattern->enter();
}

void FormatSection::layOut() {
    auto* choices = new QHBoxLayout;
    choices->setSpacing(layoutGap);
    choices->addWidget(m_preset, 1);
    choices->addWidget(m_layout);
    body().addLayout(choices);
    body().addWidget(m_pattern);
}

} // namespace quorvane
