// SPDX-License-Identifier: MIT
#include "PreferencesBoard.h"

#include "Samples.h"

#include <controls/CheckBox.h>
#include <controls/DevicePixels.h>
#include <controls/IconButton.h>
#include <controls/SearchField.h>
#include <controls/TextStyle.h>
#include <hotkey/ShortcutChord.h>
#include <picker/ZoneList.h>
#include <platform/KeyCodes.h>
#include <preferences/PreferencesMetrics.h>
#include <preferences/PreferencesView.h>
#include <recorder/KeyCapture.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeAutostart.h>
#include <testing/FakeDesktopShortcut.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <QCoreApplication>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 32;
constexpr int noteHeight = 16;
constexpr int noteGap = 12;
constexpr int titleHeight = 36;
constexpr double windowRadius = 12;
constexpr int closeInset = 4;
constexpr int windows = 5;
constexpr QSize boardSize{
    margin + windows * (preferencesmetrics::size.width() + margin),
    2 * margin + noteHeight + noteGap + titleHeight + preferencesmetrics::size.height()};

/// Drops everything: a picture has no later event-loop iteration, and no window of it keeps the
/// focus.
class NoQueue final : public MainQueue {
public:
    void async(Task /*task*/) override {}

    [[nodiscard]] Deadline after(Seconds /*delay*/, Task /*task*/) override { return {}; }
};

void hold(PreferencesView& view, Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, static_cast<quint32>(key), 0, 0);
    QCoreApplication::sendEvent(view.findChild<KeyCapture*>(), &press);
}

/// As if the pointer were over the row of that city.
void hover(PreferencesView& view, const QString& city) {
    auto* list = view.findChild<ZoneList*>();
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const auto index = list->model()->index(row, 0);
        if (index.data().toString() != city)
            continue;
        const auto place = list->visualRect(index).center();
        QHoverEvent over(QEvent::HoverMove, place, place, place);
        QCoreApplication::sendEvent(list->viewport(), &over);
        return;
    }
}

} // namespace

/// A user's settings and the view of them. The view goes first.
struct PreferencesBoard::Sample {
    MemoryDefaults defaults;
    NoQueue queue;
    VirtualMainQueue fakesQueue; ///< for the times in the log
    CallLog log{fakesQueue};
    FakeAutostart autostart{log};
    FakeDesktopShortcut shortcuts{log};
    FakeAccessibilityRight right{log};
    std::vector<ServiceState> states;
    BindingSyntax syntax = BindingSyntax::Command;
    FakeKeyboardLayout layout = sample::keyboard();
    DateTimeModel model{
        {sample::clock(), defaults, sample::currentZone(), sample::zones(), sample::locale()}};
    std::unique_ptr<PreferencesView> view;
};

PreferencesBoard::PreferencesBoard(ColorScheme scheme, Content content, QWidget* parent)
    : QWidget(parent),
      m_content(content) {
    setPalette(builtInPalette(scheme));
    setFixedSize(boardSize);
    if (content == Content::Settings)
        addSettings();
    else
        addDesktopHelp();
}

void PreferencesBoard::addSettings() {
    addWindow(u"Preferences"_s, Icons::MenuBar);

    auto& recording = addWindow(u"Recording; starred only"_s, Icons::Nowhere);
    recording.findChild<CheckBox*>()->click();
    auto* button = recording.findChild<ShortcutRecorder*>()->findChild<IconButton*>();
    button->click();
    button->setAttribute(Qt::WA_UnderMouse);
    hold(recording, Qt::Key_Control);
    hold(recording, Qt::Key_Meta);

    addWindow(
        u"Searching; shortcut held elsewhere"_s,
        Icons::Everywhere,
        ShortcutRecorder::Activity::HeldElsewhere)
        .findChild<SearchField*>()
        ->setText(u"la"_s);

    addWindow(
        u"Starred only, without favourites"_s,
        Icons::MenuBar,
        ShortcutRecorder::Activity::Active,
        [](Sample& sample) { sample.model.setFavoriteTimeZoneIdentifiers({}); })
        .findChild<CheckBox*>()
        ->click();

    addWindow(
        u"Every zone a favourite; a key that this keyboard lacks"_s,
        Icons::MenuBar,
        ShortcutRecorder::Activity::NoSuchKey,
        [](Sample& sample) {
            auto& model = sample.model;
            model.setFavoriteTimeZoneIdentifiers(sample::everyZone());
            model.setHotKey({keycode::leftArrow, combomodifier::control | combomodifier::option});
        });
}

void PreferencesBoard::addDesktopHelp() {
    constexpr auto nobodys = ShortcutRecorder::Activity::Unavailable;
    const auto asking = [](Sample& sample, TypingRight right) {
        sample.shortcuts.setDesktopName(u"GNOME"_s);
        sample.right.setCanPrompt();
        sample.right.setTyping(right);
    };
    addWindow(
        u"A list to be added to; not allowed yet"_s, Icons::MenuBar, nobodys, [=](Sample& it) {
            asking(it, TypingRight::NotAsked);
        });
    addWindow(u"In the list; allowed"_s, Icons::MenuBar, nobodys, [=](Sample& it) {
        it.shortcuts.setBound(chordOf(it.model.hotKey()));
        asking(it, TypingRight::Granted);
    });
    addWindow(u"Another command has it; stopped"_s, Icons::MenuBar, nobodys, [=](Sample& it) {
        it.shortcuts.setBound(KeyChord{keycode::f5, modifier::command});
        it.shortcuts.setHolder(*chordOf(it.model.hotKey()), u"Lock screen"_s);
        asking(it, TypingRight::Stopped);
        it.states = sample::serviceStates();
    });
    addWindow(u"A line for a configuration"_s, Icons::MenuBar, nobodys, [](Sample& it) {
        it.syntax = BindingSyntax::Sway;
        it.states = sample::serviceStates();
    });
    addWindow(u"A command for a desktop's settings"_s, Icons::MenuBar, nobodys);
}

PreferencesBoard::~PreferencesBoard() = default;

QSize PreferencesBoard::sizeHint() const {
    return boardSize;
}

void PreferencesBoard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    const bool isDark = colorScheme(palette()) == ColorScheme::Dark;
    painter.fillRect(rect(), isDark ? QColor(0x0e0f11) : QColor(0xc6ccd8));
    for (std::size_t index = 0; index < m_samples.size(); ++index) {
        const auto frame = frameOf(index);
        fillRounded(painter, frame, windowRadius, theme.windowBackground);
        frameRounded(painter, frame, windowRadius, theme.border, 1);
        const auto title = QRect(frame.topLeft(), QSize(frame.width(), titleHeight));
        painter.setFont(textFont(font(), TextStyle::Headline));
        painter.setPen(theme.text);
        painter.drawText(
            title,
            Qt::AlignCenter,
            QCoreApplication::translate("quorvane::PreferencesWindow", "Quorvane Preferences"));
    }
}

void PreferencesBoard::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_content == Content::DesktopHelp)
        return;
    hover(*m_samples.front()->view, u"Pago Pago"_s);
    hover(*m_samples[2]->view, u"Nome"_s);
}

PreferencesView& PreferencesBoard::addWindow(
    const QString& note,
    Icons icons,
    ShortcutRecorder::Activity activity,
    const std::function<void(Sample&)>& prepare) {
    const auto frame = frameOf(m_samples.size());
    auto& sample = *m_samples.emplace_back(std::make_unique<Sample>());
    sample.model.setShowInMenuBar(icons != Icons::Nowhere);
    sample.model.setShowInDock(icons == Icons::Everywhere);
    if (prepare)
        prepare(sample);
    sample.view = std::make_unique<PreferencesView>(
        sample.model,
        PreferencesView::Dependencies{
            sample.layout,
            sample::zones(),
            sample.queue,
            sample::clock(),
            sample.autostart,
            sample.shortcuts,
            sample.right,
            sample.states,
            [activity] {
                return ShortcutRecorder::Status{activity, {}};
            },
            [] {},
            [](const QString&) { return true; },
            {},
            {},
            sample.syntax},
        [](HotKeyCombo) {},
        this);
    sample.view->setGeometry(
        QRect(frame.topLeft() + QPoint(0, titleHeight), preferencesmetrics::size));
    auto* close = new IconButton(IconButton::Kind::Close, Symbol::Xmark, u"Close"_s, this);
    close->move(
        frame.right() + 1 - closeInset - close->sizeHint().width(), frame.top() + closeInset);
    auto* label = new QLabel(note, this);
    label->setFont(fixedSizeFont(font(), 11, QFont::Medium));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setGeometry(frame.left(), margin, frame.width(), noteHeight);
    return *sample.view;
}

QRect PreferencesBoard::frameOf(std::size_t index) const {
    const int left = margin + static_cast<int>(index) * (preferencesmetrics::size.width() + margin);
    return {
        left,
        margin + noteHeight + noteGap,
        preferencesmetrics::size.width(),
        titleHeight + preferencesmetrics::size.height()};
}

} // namespace quorvane
