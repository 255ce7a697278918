// SPDX-License-Identifier: MIT
#include "TimePickerPopover.h"

#include <controls/SegmentedChip.h>
#include <controls/TextButton.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <platform/KeyCodes.h>

#include <QHBoxLayout>
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

} // namespace

TimePickerPopover::TimePickerPopover(
    Binding<Instant> date, const EntryDependencies& dependencies, QWidget* parent)
    : QWidget(parent),
      m_date(std::move(date)),
      m_dependencies(dependencies),
      m_hour(numberField(tr("Hour"), u"12"_s)),
      m_minute(numberField(tr("Minute"), u"00"_s)),
      m_period(new SegmentedChip(this)),
      m_now(new TextButton(tr("Now"), this)) {
    // A clock reads from left to right in every script.
    setLayoutDirection(Qt::LeftToRight);
    m_period->setAccessibleName(tr("AM or PM"));
    m_period->setMinimumWidth(periodWidth);
    showPeriod(false);
    connect(m_period, &SegmentedChip::chosen, this, [this](int index) { setPM(index == 1); });
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

NumberField* TimePickerPopover::numberField(const QString& name, const QString& placeholder) {
    auto* field = new NumberField(placeholder, m_dependencies.pasteReader, this);
    field->setAccessibleName(name);
    connect(field, &NumberField::textChanged, this, &TimePickerPopover::save);
    return field;
}

NumberField* TimePickerPopover::fieldWidget(Field field) const {
    return field == Field::Hour ? m_hour : m_minute;
}

TimeTexts TimePickerPopover::texts() const {
    return {m_hour->text(), m_minute->text(), m_period->selectedIndex() == 1};
}

void TimePickerPopover::layOut() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding - TextButton::horizontalPadding, padding);
    row->setSpacing(spacing);
    row->addWidget(m_hour);
    row->addSpacing(spacing + colonWidth);
    row->addWidget(m_minute);
    row->addSpacing(periodLeading);
    row->addWidget(m_period);
    row->addWidget(m_now);
}

void TimePickerPopover::addShortcuts() {
    const auto add = [this](Qt::Key key, auto action) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | key), this);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    add(Qt::Key_A, [this] { setPM(false); });
    add(Qt::Key_P, [this] { setPM(true); });
    add(Qt::Key_N, [this] { takeTimeOfNow(); });
}

void TimePickerPopover::load() {
    const auto time = loadedTime(m_date.get(), zone());
    {
        // What is shown in between is no time that anyone chose.
        const QSignalBlocker hourBlocker(m_hour);
        const QSignalBlocker minuteBlocker(m_minute);
        m_hour->setText(time.hourText);
        m_minute->setText(time.minuteText);
        showPeriod(time.isPM);
    }
    save();
}

void TimePickerPopover::save() {
    if (const auto saved = savedTime(texts(), m_date.get(), zone()))
        m_date.set(*saved);
}

void TimePickerPopover::step(int amount) {
    const bool isHour = focus() == Field::Hour;
    auto* field = isHour ? m_hour : m_minute;
    field->setText(
        isHour ? steppedHour(field->text(), amount) : steppedMinute(field->text(), amount));
    if (field->hasFocus())
        field->selectAll();
}

void TimePickerPopover::setPM(bool isPM) {
    showPeriod(isPM);
    save();
}

void TimePickerPopover::takeTimeOfNow() {
    m_date.set(withTimeOf(m_dependencies.clock.now(), m_date.get(), zone()));
    load();
    if (const auto field = focus())
        fieldWidget(*field)->selectAll();
}

void TimePickerPopover::showPeriod(bool isPM) {
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
        [this](std::uint32_t keyCode) { return handleKey(keyCode); });
}

LocalKeyMonitor::Verdict TimePickerPopover::handleKey(std::uint32_t keyCode) {
    switch (keyCode) {
    case keycode::tab:
        setFocus(focus() == Field::Hour ? Field::Minute : Field::Hour, Qt::TabFocusReason);
        break;
    case keycode::leftArrow:
        setFocus(Field::Hour, Qt::TabFocusReason);
        break;
    case keycode::rightArrow:
        setFocus(Field::Minute, Qt::TabFocusReason);
        break;
    case keycode::downArrow:
        step(-1);
        break;
    case keycode::upArrow:
        step(+1);
        break;
    default:
        return LocalKeyMonitor::Verdict::Pass;
    }
    return LocalKeyMonitor::Verdict::Swallow;
}

} // namespace quorvane
