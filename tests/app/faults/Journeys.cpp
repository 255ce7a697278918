// SPDX-License-Identifier: MIT
#include "Journeys.h"

#include "AppearanceFollower.h"
#include "WindowActivation.h"

#include <support/PhysicalKeyboard.h>

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto untilAllIsDone = 5s;
constexpr KeyChord recorded{40, modifier::control | modifier::option};

template <typename Event>
void sendDrag(QWidget& field, const QMimeData& data) {
    const QPoint place(field.width() - 1, field.height() / 2);
    Event event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &event);
}

} // namespace

PasteboardContents Journeys::copiedBefore() {
    auto contents = plainText(u"mine"_s);
    contents.selection = plainText(u"marked"_s).items.front();
    return contents;
}

std::span<const Journeys::Journey> Journeys::all() {
    static constexpr std::array journeys{
        Journey{"ShowAndHide", &Journeys::showAndHide},
        Journey{"Insert", &Journeys::insert},
        Journey{"InsertIntoATerminal", &Journeys::insertIntoATerminal},
        Journey{"InsertTwice", &Journeys::insertTwice},
        Journey{"Copy", &Journeys::copy, true},
        Journey{"PickAZone", &Journeys::pickAZone},
        Journey{"PasteIntoAField", &Journeys::pasteIntoAField},
        Journey{"ChangePreferences", &Journeys::changePreferences},
        Journey{"RecordAShortcut", &Journeys::recordAShortcut},
        Journey{"UseTheDesktopsListOfShortcuts", &Journeys::useADesktopsListOfShortcuts},
        Journey{"AllowTyping", &Journeys::allowTyping},
        Journey{"StartWithTheSession", &Journeys::startWithTheSession},
        Journey{"UseTheIcon", &Journeys::useTheIcon},
        Journey{"LookForUpdates", &Journeys::lookForUpdates},
        Journey{"ChangeTheDesktop", &Journeys::changeTheDesktop},
        Journey{"MoveThePanel", &Journeys::moveThePanel},
        Journey{"QuitInTheMiddle", &Journeys::quitInTheMiddle, false, true},
        Journey{
            "StartOnBrokenSettings",
            &Journeys::startOnBrokenSettings,
            false,
            false,
            "what the user wrote by hand: ["},
    };
    return journeys;
}

void Journeys::startAndHide() {
    m_wasTold = false;
    launch();
    queue.run();
    workspace->setFront(editor);
    taps->press(shortcut);
    taps->release();
    queue.run();
}

void Journeys::deliver(const QString& action) {
    delegate->performAction(action);
    pass(untilAllIsDone);
}

void Journeys::pass(Seconds span) {
    queue.advance(span);
    m_wasTold = m_wasTold || notifications->shown || !statusBar->toolTip.isEmpty();
}

void Journeys::showAndHide() {
    startAndHide();
    for (int time = 0; time < 2; ++time) {
        taps->press(shortcut);
        taps->release();
        queue.run();
    }
    delegate->surfaceMainUIForReopen();
    workspace->changeSpace();
    queue.run();
}

void Journeys::insert() {
    startAndHide();
    deliver(u"insert"_s);
    delegate->togglePresentation();
    deliver(u"insert"_s);
}

void Journeys::insertIntoATerminal() {
    keyPoster->setPasteTarget({PasteKeys::ShiftInsert, PasteSource::Selection});
    startAndHide();
    deliver(u"insert"_s);
}

void Journeys::insertTwice() {
    startAndHide();
    delegate->performAction(u"insert"_s);
    pass(300ms);
    deliver(u"insert"_s);
}

void Journeys::copy() {
    startAndHide();
    deliver(u"copy"_s);
    delegate->surfaceMainUIForReopen();
    press(u"Copy"_s, panel());
    pass(untilAllIsDone);
}

void Journeys::pickAZone() {
    launch();
    press(u"Add time zone"_s, panel());
    if (auto* search = shown(panel(), QAccessible::EditableText, u"Search"_s)) {
        QTest::keyClicks(search, u"kathmandu"_s);
        QTest::keyClick(search, Qt::Key_Return);
        QTest::keyClick(search, Qt::Key_Escape);
    }
    pass(untilAllIsDone);
}

void Journeys::pasteIntoAField() {
    launch();
    pasteboard->setDragged(u"dragged"_s);
    press(u"Add time zone"_s, panel());
    auto* search = shown(panel(), QAccessible::EditableText, u"Search"_s);
    if (search == nullptr)
        return;
    QTest::keySequence(search, QKeySequence::Paste);
    pass(untilAllIsDone);
    QMimeData data;
    data.setText(u"not asked for"_s);
    sendDrag<QDragEnterEvent>(*search, data);
    pass(untilAllIsDone);
    sendDrag<QDropEvent>(*search, data);
    QTest::keyClick(search, Qt::Key_Escape);
}

void Journeys::changePreferences() {
    startAndHide();
    delegate->performAction(u"preferences"_s);
    queue.run();
    for (const auto& box :
         {u"Start at login"_s,
          u"Remember format and zones"_s,
          u"Show windows in taskbar"_s,
          u"Show icon in system tray"_s})
        press(box, preferences());
    pass(untilAllIsDone);
    autostart->changeElsewhere(false);
    preferences()->close();
    delegate->showPreferences();
}

void Journeys::recordAShortcut() {
    taps->setHeldElsewhere(true);
    startAndHide();
    delegate->showPreferences();
    queue.run();
    taps->setHeldElsewhere(false);
    PhysicalKeyboard keyboard(*preferences());
    for (const auto& modifiers : {physicalkey::shift, physicalkey::control}) {
        press(u"Record new shortcut"_s, preferences());
        queue.run();
        keyboard.type(physicalkey::k, {modifiers});
        pass(untilAllIsDone);
    }
}

void Journeys::useADesktopsListOfShortcuts() {
    taps->refuse({u"this desktop has none"_s});
    desktopShortcut->setDesktopName(u"GNOME"_s);
    desktopShortcut->setHolder(recorded, u"Terminal"_s);
    startAndHide();
    delegate->showPreferences();
    queue.run();
    press(u"Add to GNOME shortcuts"_s, preferences());
    queue.run();
    press(u"Record new shortcut"_s, preferences());
    PhysicalKeyboard keyboard(*preferences());
    keyboard.type(physicalkey::k, {physicalkey::control, physicalkey::alt});
    queue.run();
    press(u"Remove"_s, preferences());
    pass(untilAllIsDone);
    taps->permit();
}

void Journeys::allowTyping() {
    right->setCanPrompt();
    right->setTyping(TypingRight::NotAsked);
    startAndHide();
    deliver(u"insert"_s);
    if (notifications->shown && notifications->shown->action)
        notifications->shown->action->perform();
    queue.run();
    press(u"Allow…"_s, preferences());
    queue.run();
    right->setTyping(TypingRight::Granted);
    deliver(u"insert"_s);
}

void Journeys::startWithTheSession() {
    delegate->applicationDidFinishLaunching(AppDelegate::Launch::Hidden);
    pass(HiddenStart::patience + 1s);
}

void Journeys::useTheIcon() {
    delegate->model().setPresentationMode(PresentationMode::Popover);
    startAndHide();
    statusBar->click(StatusItem::Click::Left);
    queue.run();
    deliver(u"insert"_s);
    const bool isThere = !statusBar->publishedMenu.empty();
    for (const auto click : {StatusItem::Click::Left, StatusItem::Click::Right}) {
        statusBar->click(click);
        queue.run();
    }
    statusBar->changeTextColor(QColor(Qt::white));
    if (isThere)
        statusBar->publishedMenu[0].run();
    queue.run();
    delegate->model().setShowInMenuBar(false);
    queue.run();
    delegate->model().setShowInMenuBar(true);
    queue.run();
    statusBar->hasButton = false;
    delegate->togglePresentation();
    queue.run();
    statusBar->hasButton = true;
}

void Journeys::lookForUpdates() {
    startAndHide();
    delegate->checkForUpdates();
    queue.run();
}

void Journeys::changeTheDesktop() {
    using Source = AppearanceFollower;
    const AppearanceFollower follower(
        *platform.appearance, Source::paletteSource(), Source::fontSource());
    windowTraits->composited = true;
    startAndHide();
    delegate->surfaceMainUIForReopen();
    windowTraits->setComposited(false);
    appearance->change({.scheme = DesktopAppearance::Scheme::Dark});
    currentZone.set(*zones.zone(u"Asia/Tokyo"_s));
    timeChanges->change();
    keyboardLayout->setKey(2, u"e");
    workspace->changeSpace();
    workspace->close(editor);
    pass(untilAllIsDone);
    currentZone.set(*zones.zone(u"America/New_York"_s));
    timeChanges->change();
    pass(24h);
}

void Journeys::moveThePanel() {
    startAndHide();
    delegate->surfaceMainUIForReopen();
    makeActive(*panel());
    pass(untilAllIsDone);
    windowTraits->held = HeldInput{{}, 1};
    panel()->move(panel()->pos() + QPoint(30, 20));
    panel()->resize(panel()->width(), panel()->height() + 40);
    windowTraits->held = HeldInput{};
    pass(untilAllIsDone);
}

void Journeys::quitInTheMiddle() {
    startAndHide();
    delegate->performAction(u"insert"_s);
    pass(300ms);
    delegate->performAction(u"quit"_s);
    pass(untilAllIsDone);
}

void Journeys::startOnBrokenSettings() {
    startAndHide();
    delegate->model().setShowInDock(true);
    queue.run();
}

} // namespace quorvane
