// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/IconButton.h>
#include <controls/KeyCap.h>
#include <controls/Theme.h>
#include <recorder/KeyCapture.h>
#include <recorder/KeyNames.h>
#include <recorder/ShortcutRecorder.h>

#include <QHBoxLayout>
#include <QPainter>

#include <iterator>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int capsStart = 5;
constexpr int capSpacing = 4;
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
      m_button(new IconButton(IconButton::Kind::Framed, Symbol::Keyboard, {}, this)) {
    setAccessibleName(tr("Shortcut"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_capture->setAccessibleName(tr("Recording a new shortcut"));
    m_capture->setAccessibleDescription(
        tr("Press a key together with Control, Alt, Shift or Super. Escape cancels."));
    m_capture->setNextFocus(m_button);
    // A press of the button must not take the focus from the recording that it is to end.
    m_button->setFocusPolicy(Qt::TabFocus);
    connect(m_button, &IconButton::clicked, this, &ShortcutRecorder::toggle);
    auto* caps = new QHBoxLayout;
    caps->setSpacing(capSpacing);
    for (auto*& cap : m_caps) {
        cap = new KeyCap({}, this);
        caps->addWidget(cap);
    }
    // Spacings, not margins: a layout mirrors those.
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(capsStart);
    row->addLayout(caps);
    row->addStretch();
    row->addWidget(m_button);
    row->addSpacing(buttonInset);
    refresh();
}

QStringList ShortcutRecorder::keys() const {
    if (!m_isRecording)
        return combo().displayKeys(m_keyboardLayout);
    return modifierGlyphs(toCarbonModifiers(m_previewMods)) << ellipsis;
}

void ShortcutRecorder::setActivity(Activity activity) {
    m_activity = activity;
    refresh();
}

void ShortcutRecorder::refresh() {
    refreshCaps();
    refreshTexts();
    update();
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

void ShortcutRecorder::toggle() {
    setRecording(!m_isRecording);
}

void ShortcutRecorder::record(HotKeyCombo combo) {
    m_combo.set(combo);
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

QString ShortcutRecorder::warningOf(Activity activity) {
    switch (activity) {
    case Activity::HeldElsewhere:
        return tr("Another program holds this shortcut.");
    case Activity::NoSuchKey:
        return tr("This keyboard has no such key.");
    case Activity::Unavailable:
        return tr("Global shortcuts are not available on this desktop.");
    case Activity::Active:
        break;
    }
    return {};
}

QString ShortcutRecorder::warning() const {
    return m_isRecording ? QString() : warningOf(m_activity);
}

void ShortcutRecorder::refreshCaps() {
    const auto labels = keys();
    const auto names = keyNames();
    for (qsizetype index = 0; index < std::ssize(m_caps); ++index) {
        auto* cap = m_caps[static_cast<std::size_t>(index)];
        cap->setVisible(index < labels.size());
        if (index >= labels.size())
            continue;
        cap->setText(labels[index]);
        cap->setAccessibleName(names[index]);
        cap->setAccessibleDescription(warning());
        cap->setToolTip(warning().isEmpty() ? names[index] : warning());
    }
}

void ShortcutRecorder::refreshTexts() {
    m_button->setFace(
        m_isRecording ? Symbol::XmarkCircleFill : Symbol::Keyboard,
        m_isRecording ? tr("Cancel") : tr("Record new shortcut"));
    const auto spoken = keyNames().join(u", "_s);
    const auto described = warning().isEmpty() ? spoken : spoken + u". "_s + warning();
    setAccessibleDescription(m_isRecording ? tr("Recording: %1").arg(described) : described);
    // Told when the focus comes back to it: this is what the recording has led to.
    m_button->setAccessibleDescription(m_isRecording ? QString() : described);
}

} // namespace quorvane
