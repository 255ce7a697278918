// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/IconButton.h>
#include <controls/KeyCapRow.h>
#include <controls/Theme.h>
#include <recorder/KeyCapture.h>
#include <recorder/KeyNames.h>
#include <recorder/ShortcutRecorder.h>

#include <QHBoxLayout>
#include <QPainter>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int capsStart = 5;
constexpr int buttonInset = 3;
constexpr double cornerRadius = 8;
constexpr double frameWidth = 2;

const auto ellipsis = u"…"_s;

} // namespace

ShortcutRecorder::ShortcutRecorder(
    Binding<HotKeyCombo> combo, const KeyboardLayout& layout, MainQueue& queue, QWidget* parent)
    : RoleWidget(QAccessible::Grouping, parent),
      m_combo(std::move(combo)),
      m_keyboardLayout(layout),
      m_capture(new KeyCapture(
          queue,
          {[this](HotKeyCombo recorded) { record(recorded); },
           [this](ModifierFlags flags) {
               m_previewMods = flags;
               refresh();
           },
           [this] {
               setRecording(false);
           }},
          this)),
      m_caps(new KeyCapRow(this)),
      m_button(new IconButton(IconButton::Kind::Framed, Symbol::Keyboard, {}, this)) {
    setAccessibleName(tr("Shortcut"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_capture->setAccessibleName(tr("Recording a new shortcut"));
    m_capture->setAccessibleDescription(
        tr("Press a key together with Control, Alt, Shift or Super. Escape cancels."));
    m_capture->setNextFocus(m_button);
    // A press of the button must not take the focus from the recording that it is to end.
    m_button->setFocusPolicy(Qt::TabFocus);
    setFocusProxy(m_button);
    connect(m_button, &IconButton::clicked, this, &ShortcutRecorder::toggle);
    // Spacings, not margins: a layout mirrors those.
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(capsStart);
    row->addWidget(m_caps);
    row->addStretch();
    row->addWidget(m_button);
    row->addSpacing(buttonInset);
    refresh();
}

QStringList ShortcutRecorder::keys() const {
    if (!m_isRecording)
        return capLabels(combo(), m_keyboardLayout);
    return modifierLabels(toCarbonModifiers(m_previewMods)) << ellipsis;
}

void ShortcutRecorder::setStatus(Status status) {
    m_status = std::move(status);
    refresh();
}

void ShortcutRecorder::refresh() {
    refreshCaps();
    refreshTexts();
    update();
    Q_EMIT noticeChanged();
}

QSize ShortcutRecorder::sizeHint() const {
    return {RoleWidget::sizeHint().width(), recorderHeight};
}

void ShortcutRecorder::paintEvent(QPaintEvent* /*event*/) {
    if (!m_isRecording)
        return;
    QPainter painter(this);
    frameRounded(painter, rect(), cornerRadius, Theme::of(palette()).accentText, frameWidth);
}

void ShortcutRecorder::resizeEvent(QResizeEvent* event) {
    RoleWidget::resizeEvent(event);
    m_capture->setGeometry(rect());
}

void ShortcutRecorder::startRecording() {
    if (!m_isRecording)
        setRecording(true);
}

void ShortcutRecorder::toggle() {
    setRecording(!m_isRecording);
}

void ShortcutRecorder::record(HotKeyCombo combo) {
    m_combo.set(combo);
    m_hasRecorded = true;
    setRecording(false);
}

void ShortcutRecorder::setRecording(bool isRecording) {
    m_isRecording = isRecording;
    m_previewMods = modifier::none;
    m_capture->setIsRecording(isRecording);
    refresh();
}

QStringList ShortcutRecorder::keyNames() const {
    if (!m_isRecording)
        return spokenKeys(combo(), m_keyboardLayout);
    return spokenModifiers(toCarbonModifiers(m_previewMods)) << tr("Waiting for a key");
}

QString ShortcutRecorder::notice() const {
    switch (m_status.activity) {
    case Activity::HeldElsewhere:
        return m_status.holder.isEmpty() ? tr("Another program holds this shortcut.")
                                         : tr("%1 holds this shortcut.").arg(m_status.holder);
    case Activity::NoSuchKey:
        return tr("This keyboard has no such key.");
    case Activity::Unavailable:
        return tr("Global shortcuts are not available on this desktop.");
    case Activity::Active:
        break;
    }
    return price();
}

/// "Control, Shift, D".
QString ShortcutRecorder::spokenList(const QStringList& names) {
    auto list = names.front();
    for (const auto& name : names.mid(1))
        list = tr("%1, %2").arg(list, name);
    return list;
}

/// What can no longer be typed while Shift and a key are the shortcut.
QString ShortcutRecorder::lostByShift(const QString& key) {
    return key.front().isLetter()
               ? tr("While this is the shortcut, you cannot type a capital %1 anywhere.").arg(key)
               : tr("While this is the shortcut, you cannot type what Shift+%1 types.").arg(key);
}

/// What a shortcut that works costs.
QString ShortcutRecorder::price() const {
    const auto [keyCode, modifiers] = combo();
    if (modifiers == combomodifier::shift && typesVisibleCharacter(keyCode, m_keyboardLayout))
        return lostByShift(spokenKey(keyCode, m_keyboardLayout));
    if (m_hasRecorded && (modifiers & combomodifier::command) != 0)
        return tr("If your desktop opens a menu on Super alone, press Super last: pressed first, "
                  "it opens that menu instead.");
    return {};
}

void ShortcutRecorder::refreshCaps() {
    m_caps->setKeys(keys(), keyNames());
    m_caps->setToolTip(m_isRecording ? QString() : shortcutText(combo(), m_keyboardLayout));
}

void ShortcutRecorder::refreshTexts() {
    m_button->setFace(
        m_isRecording ? Symbol::XmarkCircleFill : Symbol::Keyboard,
        m_isRecording ? tr("Cancel") : tr("Record new shortcut"));
    const auto spoken = spokenList(keyNames());
    const auto described = notice().isEmpty() ? spoken : tr("%1. %2").arg(spoken, notice());
    setAccessibleDescription(m_isRecording ? tr("Recording: %1").arg(spoken) : described);
    // Told when the focus comes back to it: this is what the recording has led to.
    m_button->setAccessibleDescription(m_isRecording ? QString() : described);
}

} // namespace quorvane
