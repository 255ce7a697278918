// SPDX-License-Identifier: MIT
#include <delivery/CopyText.h>
#include <ui/CopyButton.h>
#include <ui/OutputPreview.h>
#include <ui/PopoverView.h>
#include <ui/ZoneField.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int sideMargin = 18;
constexpr int headerMargin = 10;
constexpr int sectionSpacing = 14;
constexpr int actionMargin = 12;
constexpr int labelSpacing = 6;
constexpr int buttonHeight = 34;

QFont scaled(QFont font, double factor, QFont::Weight weight) {
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * factor));
    font.setWeight(weight);
    return font;
}

QFrame* makeLine() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);
    return line;
}

void select(QComboBox* box, const QVariant& value) {
    const QSignalBlocker blocker(box);
    box->setCurrentIndex(box->findData(value));
}

} // namespace

PopoverView::PopoverView(DateTimeModel& model, Services services, Callbacks callbacks)
    : m_model(model),
      m_services(services),
      m_callbacks(std::move(callbacks)),
      m_refresh(services.mainQueue, [this] { refresh(); }),
      m_keys(new QLabel(this)),
      m_includeDate(new QCheckBox(tr("Date"), this)),
      m_includeTime(new QCheckBox(tr("Time"), this)),
      m_zoneField(new ZoneField(services.zones, this)),
      m_preset(new QComboBox(this)),
      m_layout(new QComboBox(this)),
      m_customFormat(new QLineEdit(this)),
      m_preview(new OutputPreview(this)),
      m_copy(new CopyButton(services.mainQueue, this)),
      m_insert(new QPushButton(tr("Insert"), this)) {
    auto* sections = new QVBoxLayout;
    sections->setContentsMargins(sideMargin, sectionSpacing, sideMargin, sectionSpacing);
    sections->setSpacing(sectionSpacing);
    addSection(sections, tr("When"), makeDateRow(), m_includeDate);
    auto* zones = new QHBoxLayout;
    zones->addWidget(m_zoneField);
    addSection(sections, tr("Time Zones"), zones, m_zoneField);
    addSection(sections, tr("Format"), makeFormatRow(), m_preset);
    sections->addWidget(m_customFormat);
    auto* preview = new QHBoxLayout;
    preview->addWidget(m_preview);
    addSection(sections, tr("Preview"), preview, m_preview);
    sections->addStretch();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(makeHeader());
    column->addWidget(makeLine());
    column->addLayout(sections, 1);
    column->addWidget(makeLine());
    column->addLayout(makeActionBar());

    addShortcuts();
    connectControls();
    refresh();
}

PopoverView::~PopoverView() = default;

void PopoverView::performCopy() {
    copyText(m_services.pasteboard, m_model.formattedOutput());
    m_copy->confirm();
}

void PopoverView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        m_callbacks.onClose();
    else
        QWidget::keyPressEvent(event);
}

QHBoxLayout* PopoverView::makeHeader() {
    auto* title = new QLabel(u"Quorvane"_s, this);
    title->setFont(scaled(font(), 15.0 / 13, QFont::DemiBold));
    m_keys->setForegroundRole(QPalette::PlaceholderText);
    m_keys->setAccessibleName(tr("Shortcut"));

    auto* close = new QToolButton(this);
    close->setText(u"✕"_s);
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Close"));
    close->setAutoRaise(true);
    close->setFixedSize(28, 28);
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this, [this] { m_callbacks.onClose(); });

    auto* row = new QHBoxLayout;
    row->setContentsMargins(sideMargin, headerMargin, headerMargin, headerMargin);
    row->setSpacing(12);
    row->addWidget(title);
    row->addWidget(m_keys);
    row->addStretch();
    row->addWidget(close);
    return row;
}

QHBoxLayout* PopoverView::makeDateRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_includeDate);
    row->addWidget(m_includeTime);
    row->addStretch();
    return row;
}

QHBoxLayout* PopoverView::makeFormatRow() {
    auto* layoutLabel = new QLabel(tr("Layout"), this);
    layoutLabel->setBuddy(m_layout);
    layoutLabel->hide();
    for (const auto layout : allMultiZoneLayouts)
        m_layout->addItem(rawValue(layout), QVariant::fromValue(layout));
    m_customFormat->setAccessibleName(tr("Custom format"));
    m_customFormat->setPlaceholderText(tr("e.g. yyyy-MM-dd HH:mm zzz"));

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_preset, 1);
    row->addWidget(m_layout);
    return row;
}

QHBoxLayout* PopoverView::makeActionBar() {
    m_insert->setDefault(true);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(sideMargin, actionMargin, sideMargin, actionMargin);
    row->setSpacing(8);
    for (QPushButton* button : {static_cast<QPushButton*>(m_copy), m_insert}) {
        button->setMinimumHeight(buttonHeight);
        row->addWidget(button, 1);
    }
    return row;
}

void PopoverView::addSection(
    QVBoxLayout* column, const QString& name, QLayout* content, QWidget* main) {
    auto* label = new QLabel(name, this);
    label->setBuddy(main);
    label->setFont(scaled(font(), 1, QFont::DemiBold));
    auto* section = new QVBoxLayout;
    section->setSpacing(labelSpacing);
    section->addWidget(label);
    section->addLayout(content);
    column->addLayout(section);
}

void PopoverView::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    const auto insert = [this] {
        m_insert->click();
    };
    add(Qt::CTRL | Qt::Key_Return, insert);
    add(Qt::CTRL | Qt::Key_Enter, insert);
    add(Qt::CTRL | Qt::Key_Comma, [this] { m_callbacks.onShowPreferences(); });
    add(Qt::CTRL | Qt::Key_Q, [this] { m_callbacks.onQuit(); });
}

void PopoverView::connectControls() {
    connect(&m_model, &DateTimeModel::objectWillChange, this, [this] { m_refresh.schedule(); });
    connect(m_includeDate, &QCheckBox::toggled, this, &PopoverView::setIncludeDate);
    connect(m_includeTime, &QCheckBox::toggled, this, &PopoverView::setIncludeTime);
    connect(m_zoneField, &ZoneField::zonesEntered, &m_model, &DateTimeModel::setSelectedTimeZones);
    connect(m_preset, &QComboBox::activated, this, [this] {
        m_model.setFormatPreset(m_preset->currentData().value<DateFormatPreset>());
    });
    connect(m_layout, &QComboBox::activated, this, [this] {
        m_model.setMultiZoneLayout(m_layout->currentData().value<MultiZoneLayout>());
    });
    connect(
        m_customFormat, &QLineEdit::textEdited, &m_model, &DateTimeModel::setCustomFormatString);
    connect(m_copy, &QPushButton::clicked, this, &PopoverView::performCopy);
    connect(m_insert, &QPushButton::clicked, this, [this] { m_callbacks.onInsert(); });
}

void PopoverView::refresh() {
    m_keys->setText(m_model.hotKey().displayKeys(m_services.keyboardLayout).join(u' '));
    const QSignalBlocker dateBlocker(m_includeDate);
    const QSignalBlocker timeBlocker(m_includeTime);
    m_includeDate->setChecked(m_model.includeDate());
    m_includeTime->setChecked(m_model.includeTime());
    // One of the two stays on.
    m_includeDate->setEnabled(!m_model.includeDate() || m_model.includeTime());
    m_includeTime->setEnabled(!m_model.includeTime() || m_model.includeDate());
    m_zoneField->setZones(m_model.selectedTimeZones());
    refreshPresets();
    refreshDownstream();
    m_preview->setOutput(m_model.formattedOutput());
}

void PopoverView::refreshPresets() {
    const QSignalBlocker blocker(m_preset);
    m_preset->clear();
    for (const auto preset : m_model.availableFormatPresets())
        m_preset->addItem(rawValue(preset), QVariant::fromValue(preset));
    select(m_preset, QVariant::fromValue(m_model.formatPreset()));
    select(m_layout, QVariant::fromValue(m_model.multiZoneLayout()));
    m_layout->setVisible(m_model.includeTime() && m_model.selectedTimeZones().size() > 1);
    m_customFormat->setVisible(m_model.formatPreset() == DateFormatPreset::Custom);
    if (m_customFormat->text() != m_model.customFormatString())
        m_customFormat->setText(m_model.customFormatString());
}

void PopoverView::refreshDownstream() {
    const bool enabled = !downstreamDisabled();
    const std::initializer_list<QWidget*> downstream{
        m_preset, m_layout, m_customFormat, m_preview, m_copy, m_insert};
    for (auto* widget : downstream)
        widget->setEnabled(enabled);
}

void PopoverView::setIncludeDate(bool include) {
    m_model.setIncludeDate(include);
    m_model.reconcileFormatPreset();
}

void PopoverView::setIncludeTime(bool include) {
    m_model.setIncludeTime(include);
    m_model.reconcileFormatPreset();
}

bool PopoverView::downstreamDisabled() const {
    return m_model.includeTime() && m_model.selectedTimeZones().empty();
}

} // namespace quorvane
