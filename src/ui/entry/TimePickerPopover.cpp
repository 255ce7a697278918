// SPDX-License-Identifier: MIT
#include "TimePickerPopover.h"

#include "EntryKeys.h"

#include <controls/SegmentedChip.h>
#include <controls/TextButton.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QSignalBlocker>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int padding = 16;
constexpr int spacing = 10;
constexpr int periodWidth = 80;
constexpr int periodLeading = 4;
constexpr int colonWidth = 6;
constexpr int colonPixels = 26;

NumberField::Range rangeOf(TimePickerPopover::Field field, HourCycle cycle) {
    if (field == TimePickerPopover::Field::Minute)
        return {0, 59};
    return cycle == HourCycle::Twelve ? NumberField::Range{1, 12} : NumberField::Range{0, 23};
}

} // namespace

TimePickerPopover::TimePickerPopover(
    Binding<Instant> date, const EntryDependencies& dependencies, QWidget* parent)
    : QWidget(parent),
      m_date(std::move(date)),
      m_dependencies(dependencies),
      m_hourReader(dependencies.locale),
      m_hour(numberField(Field::Hour, tr("Hour"))),
      m_minute(numberField(Field::Minute, tr("Minute"))),
      m_now(new TextButton(tr("Now"), this)) {
    // A clock reads from left to right in every script.
    setLayoutDirection(Qt::LeftToRight);
    if (m_hourReader.cycle() == HourCycle::Twelve)
        addPeriod();
    m_now->setFocusPolicy(Qt::NoFocus);
    connect(m_now, &TextButton::clicked, this, &TimePickerPopover::takeTimeOfNow);
    layOut();
    addShortcuts();
    setFocusProxy(m_hour);
}

std::optional<TimePickerPopover::Field> TimePickerPopover::focus() const {
    for (const auto field : {Field::Hour, Field::Minute}) {
        if (fieldWidget(field)->hasFocus())
            return field;
    }
    return std::nullopt;
}

void TimePickerPopover::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    load();
    setFocus(Field::Hour, Qt::PopupFocusReason);
    installKeyMonitor();
}

void TimePickerPopover::hideEvent(QHideEvent* event) {
    m_keyMonitor.reset();
    QWidget::hideEvent(event);
}

void TimePickerPopover::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto colonFont = fixedSizeFont(font(), colonPixels, QFont::ExtraLight);
    painter.setFont(colonFont);
    painter.setPen(Theme::of(palette()).secondaryText);
    const QRectF gap(m_hour->geometry().topRight(), m_minute->geometry().bottomLeft());
    painter.drawText(gap.center() - foregroundOf(u":"_s, colonFont).center(), u":"_s);
}

NumberField* TimePickerPopover::numberField(Field field, const QString& name) {
    const bool isDial = field == Field::Hour && m_hourReader.cycle() == HourCycle::Twelve;
    auto* widget = new NumberField(
        isDial ? u"12"_s : u"00"_s,
        rangeOf(field, m_hourReader.cycle()),
        m_dependencies.pasteReader,
        this);
    widget->setAccessibleName(name);
    connect(widget, &NumberField::textChanged, this, [this, field] { noteEdit(field); });
    connect(widget, &NumberField::entered, widget, [widget] { widget->setRefusal({}); });
    connect(widget, &NumberField::left, this, [this, field] { leave(field); });
    connect(widget, &NumberField::returnPressed, this, &TimePickerPopover::finish);
    return widget;
}

NumberField* TimePickerPopover::fieldWidget(Field field) const {
    return field == Field::Hour ? m_hour : m_minute;
}

TimeTexts TimePickerPopover::texts() const {
    const TimeTexts texts{
        m_hour->text(), m_minute->text(), m_period != nullptr && m_period->selectedIndex() == 1};
    const auto time = m_hourReader.read(texts.hourText).time;
    return time ? withTypedTime(*time, texts, m_hourReader.cycle()) : texts;
}

void TimePickerPopover::layOut() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding - TextButton::horizontalPadding, padding);
    row->setSpacing(spacing);
    row->addWidget(m_hour);
    row->addSpacing(spacing + colonWidth);
    row->addWidget(m_minute);
    row->addSpacing(periodLeading);
    if (m_period != nullptr)
        row->addWidget(m_period);
    row->addWidget(m_now);
}

void TimePickerPopover::addShortcuts() {
    const auto add = [this](Qt::Key key, auto action) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | key), this);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    add(Qt::Key_N, [this] { takeTimeOfNow(); });
    if (m_period == nullptr)
        return;
    add(Qt::Key_A, [this] { setPM(false); });
    add(Qt::Key_P, [this] { setPM(true); });
}

void TimePickerPopover::addPeriod() {
    m_period = new SegmentedChip(this);
    m_period->setAccessibleName(tr("AM or PM"));
    m_period->setMinimumWidth(periodWidth);
    showPeriod(false);
    connect(m_period, &SegmentedChip::chosen, this, [this](int index) { setPM(index == 1); });
}

void TimePickerPopover::load() {
    showTexts(loadedTime(m_date.get(), zone(), m_hourReader.cycle()));
    save();
}

void TimePickerPopover::showTexts(const TimeTexts& texts) {
    // What is shown in between is no time that anyone chose.
    const QSignalBlocker hourBlocker(m_hour);
    const QSignalBlocker minuteBlocker(m_minute);
    m_hour->showText(texts.hourText);
    m_minute->showText(texts.minuteText);
    for (auto* field : {m_hour, m_minute})
        field->setRefusal({});
    showPeriod(texts.isPM);
}

void TimePickerPopover::save() {
    if (const auto saved = savedTime(texts(), m_date.get(), zone(), m_hourReader.cycle()))
        m_date.set(*saved);
}

void TimePickerPopover::noteEdit(Field field) {
    if (field == Field::Hour)
        takeWholeTime();
    save();
    fieldWidget(field)->setRefusal({});
    if (stateOf(field) == TypingState::Refused)
        refuse(field);
}

/// The minute of a time in the hour's field goes where it belongs; a word for the half of the day
/// stays until the field is left, for it may be the beginning of a longer one.
void TimePickerPopover::takeWholeTime() {
    const auto time = m_hourReader.read(m_hour->text()).time;
    if (!time)
        return;
    const auto typed = texts();
    if (time->minute)
        showTexts(typed);
    else
        showPeriod(typed.isPM);
}

TypingState TimePickerPopover::stateOf(Field field) const {
    return field == Field::Hour ? m_hourReader.read(m_hour->text()).state
                                : readMinute(m_minute->text());
}

void TimePickerPopover::refuse(Field field) {
    fieldWidget(field)->setRefusal(field == Field::Hour ? tr("Not an hour") : tr("Not a minute"));
}

void TimePickerPopover::leave(Field field) {
    const bool isValid = stateOf(field) == TypingState::Complete;
    const bool isNumber =
        isValid && !(field == Field::Hour && m_hourReader.read(m_hour->text()).time);
    if (isNumber)
        return;
    const auto time = loadedTime(m_date.get(), zone(), m_hourReader.cycle());
    auto* widget = fieldWidget(field);
    const QSignalBlocker blocker(widget);
    widget->showText(field == Field::Hour ? time.hourText : time.minuteText);
    if (!isValid)
        refuse(field);
}

void TimePickerPopover::finish() {
    for (const auto field : {Field::Hour, Field::Minute}) {
        if (stateOf(field) != TypingState::Complete) {
            refuse(field);
            return;
        }
    }
    Q_EMIT finished();
}

void TimePickerPopover::step(int amount) {
    const bool isHour = focus() == Field::Hour;
    leavePeriodWord();
    auto* field = isHour ? m_hour : m_minute;
    const auto text = withAsciiDigits(field->text());
    field->stepTo(
        isHour ? steppedHour(text, amount, m_hourReader.cycle()) : steppedMinute(text, amount));
}

void TimePickerPopover::setPM(bool isPM) {
    leavePeriodWord();
    showPeriod(isPM);
    save();
}

/// A word in the hour's field would contradict what is chosen now.
void TimePickerPopover::leavePeriodWord() {
    if (m_hourReader.read(m_hour->text()).time)
        leave(Field::Hour);
}

void TimePickerPopover::takeTimeOfNow() {
    m_date.set(withTimeOf(m_dependencies.clock.now(), m_date.get(), zone()));
    load();
    if (const auto field = focus())
        fieldWidget(*field)->selectAll();
}

void TimePickerPopover::showPeriod(bool isPM) {
    if (m_period == nullptr)
        return;
    m_period->setChoices({tr("AM"), tr("PM")}, isPM ? 1 : 0);
    // Tab and arrows are the digits' own here, so that a focus on the segments would be of no use;
    // and a press on them must not take it from the digits.
    for (auto* segment : m_period->findChildren<QWidget*>())
        segment->setFocusPolicy(Qt::NoFocus);
}

void TimePickerPopover::setFocus(Field field, Qt::FocusReason reason) {
    fieldWidget(field)->setFocus(reason);
}

void TimePickerPopover::installKeyMonitor() {
    m_keyMonitor = std::make_unique<LocalKeyMonitor>(
        [this](const QKeyEvent& event) { return handleKey(event); });
}

LocalKeyMonitor::Verdict TimePickerPopover::handleKey(const QKeyEvent& event) {
    switch (meaningOf(event)) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        setFocus(focus() == Field::Hour ? Field::Minute : Field::Hour, Qt::TabFocusReason);
        break;
    case Qt::Key_Left:
        setFocus(Field::Hour, Qt::TabFocusReason);
        break;
    case Qt::Key_Right:
        setFocus(Field::Minute, Qt::TabFocusReason);
        break;
    case Qt::Key_Down:
        step(-1);
        break;
    case Qt::Key_Up:
        step(+1);
        break;
    default:
        return LocalKeyMonitor::Verdict::Pass;
    }
    return LocalKeyMonitor::Verdict::Swallow;
}

} // namespace quorvane
