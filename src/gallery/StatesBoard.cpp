// SPDX-License-Identifier: MIT
#include "StatesBoard.h"

#include "Samples.h"

#include <controls/ActionButton.h>
#include <controls/CheckBox.h>
#include <controls/DevicePixels.h>
#include <controls/FocusRing.h>
#include <controls/FocusShaped.h>
#include <controls/IconButton.h>
#include <controls/KeyCap.h>
#include <controls/MacPopUpButton.h>
#include <controls/MacSegmentedControl.h>
#include <controls/PressableControl.h>
#include <controls/TextStyle.h>
#include <controls/ToggleSwitch.h>
#include <entry/DateField.h>
#include <panel/FavoriteSuggestionChip.h>
#include <panel/TimeZoneChip.h>
#include <time/ZoneDatabase.h>

#include <QLabel>
#include <QPainter>

#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize boardSize{880, 850};
constexpr QRect card{32, 32, 792, 784};
constexpr double cardRadius = 12;
constexpr QPoint origin{56, 56};
constexpr int nameColumn = 120;
constexpr int column = 140;
constexpr int gap = 16;
constexpr int headHeight = 16;
constexpr int rowHeight = 34;
constexpr int rowGap = 14;
constexpr int choiceWidth = 120;
constexpr int buttonWidth = 130;

constexpr std::array states{
    StatesBoard::State::Rest,
    StatesBoard::State::Hover,
    StatesBoard::State::Press,
    StatesBoard::State::Focus};

int columnStart(int index) {
    return origin.x() + nameColumn + gap + index * (column + gap);
}

/// The part of a control that is pressed and has the focus.
PressableControl* pressablePart(QWidget* control) {
    auto* pressable = qobject_cast<PressableControl*>(control);
    return pressable != nullptr ? pressable : control->findChild<PressableControl*>();
}

template <typename Control>
Control* wide(Control* control, int width) {
    control->setFixedWidth(width);
    return control;
}

} // namespace

StatesBoard::StatesBoard(ColorScheme scheme, QWidget* parent)
    : QWidget(parent),
      m_day(
          {[] { return sample::now; },
           [](Instant) {
           }}),
      m_dependencies(sample::entryDependencies()) {
    setPalette(builtInPalette(scheme));
    setFixedSize(boardSize);
    const std::array heads{u"rest"_s, u"hover"_s, u"press"_s, u"focus"_s};
    for (int index = 0; index < static_cast<int>(heads.size()); ++index) {
        auto* head = new QLabel(heads.at(static_cast<std::size_t>(index)), this);
        head->setFont(fixedSizeFont(font(), 11, QFont::Medium));
        head->setForegroundRole(QPalette::PlaceholderText);
        head->setGeometry(columnStart(index), origin.y(), column, headHeight);
    }
    addChips();
    addChoices();
    addBoxes();
    addButtons();
    addKeyCaps();
}

QSize StatesBoard::sizeHint() const {
    return boardSize;
}

void StatesBoard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    const bool isDark = colorScheme(palette()) == ColorScheme::Dark;
    painter.fillRect(rect(), isDark ? QColor(0x0e0f11) : QColor(0xc6ccd8));
    fillRounded(painter, card, cardRadius, theme.windowBackground);
}

void StatesBoard::addChips() {
    const auto zone = ZoneDatabase::utc();
    addRow(u"date chip"_s, [this](State) { return new DateField(m_day, {}, m_dependencies); });
    addRow(u"selected zone"_s, [&](State) { return new TimeZoneChip(zone, u"EST"_s, [] {}); });
    addRow(u"suggested zone"_s, [&](State) {
        return new FavoriteSuggestionChip(zone, u"Tokyo"_s, [] {});
    });
}

void StatesBoard::addChoices() {
    addRow(u"pop-up"_s, [](State) {
        auto* popUp = wide(new MacPopUpButton({}), choiceWidth);
        popUp->setChoices({u"Long"_s, u"Medium"_s}, 1);
        return popUp;
    });
    addRow(u"segments"_s, [](State) {
        auto* segments = wide(new MacSegmentedControl, choiceWidth);
        segments->setChoices({u"Inline"_s, u"Lines"_s}, 1);
        return segments;
    });
}

void StatesBoard::addBoxes() {
    const auto box = [](const QString& label, bool isChecked) {
        auto* checkBox = new CheckBox(label);
        checkBox->setChecked(isChecked);
        return checkBox;
    };
    addRow(u"checkbox"_s, [&](State) { return box(u"Date"_s, true); });
    addRow(u"checkbox off"_s, [&](State) { return box(u"to"_s, false); });
    addRow(u"switch"_s, [](State state) {
        auto* toggle = new ToggleSwitch;
        toggle->setChecked(state != State::Rest);
        return toggle;
    });
}

void StatesBoard::addButtons() {
    addRow(u"header button"_s, [](State) {
        return new IconButton(IconButton::Kind::Header, Symbol::Ellipsis, u"More"_s);
    });
    addRow(u"close"_s, [](State) {
        return new IconButton(IconButton::Kind::Close, Symbol::Xmark, u"Close"_s);
    });
    addRow(u"Copy"_s, [](State) {
        return wide(
            new ActionButton(ActionButton::Prominence::Bordered, Symbol::DocOnDoc, u"Copy"_s),
            buttonWidth);
    });
    addRow(u"Insert"_s, [](State) {
        return wide(
            new ActionButton(ActionButton::Prominence::Prominent, Symbol::Return, u"Insert"_s),
            buttonWidth);
    });
    addRow(u"checkbox locked"_s, [](State state) -> QWidget* {
        if (state != State::Rest)
            return nullptr;
        auto* locked = new CheckBox(u"Date"_s);
        locked->setChecked(true);
        locked->setEnabled(false);
        return locked;
    });
}

void StatesBoard::addKeyCaps() {
    addRow(u"key caps"_s, [](State) { return nullptr; });
    int left = columnStart(0);
    for (const auto& label :
         {u"Ctrl"_s, u"Alt"_s, u"Shift"_s, u"Super"_s, u"D"_s, u"←"_s, u"↑"_s, u"…"_s}) {
        auto* cap = new KeyCap(label, this);
        const auto size = cap->sizeHint();
        cap->setGeometry(QRect(QPoint(left, rowCenter() - size.height() / 2), size));
        left += size.width() + 4;
    }
}

void StatesBoard::addRow(const QString& name, const Maker& make) {
    ++m_rows;
    auto* label = new QLabel(name, this);
    label->setFont(fixedSizeFont(font(), 11, QFont::Medium));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setGeometry(origin.x(), rowCenter() - rowHeight / 2, nameColumn + gap, rowHeight);
    for (int index = 0; index < static_cast<int>(states.size()); ++index) {
        const auto state = states.at(static_cast<std::size_t>(index));
        if (auto* control = make(state))
            addControl(control, index, state);
    }
}

void StatesBoard::addControl(QWidget* control, int column, State state) {
    control->setParent(this);
    const QSize size(
        control->minimumWidth() == control->maximumWidth() ? control->minimumWidth()
                                                           : control->sizeHint().width(),
        control->sizeHint().height());
    control->setGeometry(QRect(QPoint(columnStart(column), rowCenter() - size.height() / 2), size));
    auto* part = pressablePart(control);
    control->show();
    if (part == nullptr)
        return;
    part->setAttribute(Qt::WA_UnderMouse, state == State::Hover);
    part->setDown(state == State::Press);
    if (state == State::Focus)
        (new FocusRing(this))->surround(part);
}

int StatesBoard::rowCenter() const {
    return origin.y() + headHeight + rowGap + (m_rows - 1) * (rowHeight + rowGap) + rowHeight / 2;
}

} // namespace quorvane
