// SPDX-License-Identifier: MIT
#include "PanelPlay.h"

#include "FormatSection.h"
#include "MenuRow.h"
#include "NumberField.h"
#include "PatternHelpButton.h"
#include "PopUpButton.h"
#include "TimeZoneSection.h"

#include <controls/IconButton.h>
#include <controls/MenuButton.h>
#include <controls/SearchField.h>
#include <entry/CalendarDay.h>
#include <entry/DateField.h>
#include <entry/TimeField.h>
#include <picker/ZoneList.h>

#include <QApplication>
#include <QCursor>
#include <QTest>

#include <stdexcept>

namespace quorvane {

namespace {

/// Low enough for a field's popover above, high enough for a menu below, on a screen of 800 x 800.
constexpr QPoint panelCorner{120, 40};
constexpr QPoint nothingThere{2, 2};

/// The one with this place among those of its kind that can be seen.
template <typename Widget>
Widget& visible(const QWidget& root, int place = 0) {
    auto widgets = root.findChildren<Widget*>();
    widgets.removeIf([](const auto* widget) { return !widget->isVisible(); });
    return *widgets.at(place);
}

void press(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
}

} // namespace

PanelPlay::PanelPlay(const BoardSetting& setting, const PanelScene::Preparation& prepare)
    : m_scale(setting.scale),
      m_scene(m_queue, prepare, setting.locale()) {
    // Away from where another panel has left it, before anything shows below it.
    QCursor::setPos(panelCorner + nothingThere);
    m_scene.show(panelCorner);
    view().activateWindow();
    m_queue.run();
    if (!QTest::qWaitForWindowActive(&view()))
        throw std::runtime_error("the panel does not become active");
}

void PanelPlay::openStartTime() {
    open(visible<TimeField>(view()));
}

void PanelPlay::enterMinute() {
    press(visible<NumberField>(*surface(), 1));
}

void PanelPlay::typeTime(const QString& text) {
    QTest::keyClicks(surface()->focusWidget(), text);
}

void PanelPlay::openStartDate() {
    open(visible<DateField>(view()));
}

void PanelPlay::typeDate(const QString& text) {
    // The first letter opens the line, which has the focus then.
    for (const auto letter : text)
        QTest::keyClicks(surface()->focusWidget(), letter);
}

void PanelPlay::openEndDate() {
    open(visible<DateField>(view(), 1));
}

void PanelPlay::hoverDay(int day) {
    QTest::mouseMove(&visible<CalendarDay>(*surface(), day - 1));
}

void PanelPlay::openPicker() {
    press(visible<IconButton>(visible<TimeZoneSection>(view())));
    QTest::mouseMove(&visible<SearchField>(view()));
}

void PanelPlay::search(const QString& query) {
    QTest::keyClicks(&visible<SearchField>(view()), query);
}

void PanelPlay::hoverZone(int row) {
    auto& list = visible<ZoneList>(view());
    const auto place = list.visualRect(list.model()->index(row, 0));
    QTest::mouseMove(list.viewport(), place.center());
}

void PanelPlay::openPresets() {
    open(visible<PopUpButton>(view()));
}

void PanelPlay::openMore() {
    open(visible<MenuButton>(view()));
}

void PanelPlay::hoverRow(int row) {
    QTest::mouseMove(&visible<MenuRow>(*surface(), row));
}

void PanelPlay::hoverPlus() {
    QTest::mouseMove(&visible<IconButton>(visible<TimeZoneSection>(view())));
}

void PanelPlay::enterPattern() {
    press(visible<TextField>(visible<FormatSection>(view())));
    QTest::keyClick(&visible<TextField>(visible<FormatSection>(view())), Qt::Key_End);
}

void PanelPlay::openPatternPage() {
    open(visible<PatternHelpButton>(view()));
}

void PanelPlay::setHeight(int height) {
    view().resize(view().width(), height);
    QApplication::sendPostedEvents();
}

void PanelPlay::copy() {
    view().performCopy();
    if (m_scene.pasteboard().contents().items.empty())
        throw std::runtime_error("the panel does not copy");
}

QWidget* PanelPlay::surface() const {
    return m_opener != nullptr ? m_opener->openedSurface() : nullptr;
}

ScenePicture PanelPlay::picture() {
    ScenePicture picture(view(), m_scale);
    if (auto* opened = surface())
        picture.add(*opened);
    return picture;
}

void PanelPlay::open(PressableControl& control) {
    press(control);
    m_opener = &control;
}

} // namespace quorvane
