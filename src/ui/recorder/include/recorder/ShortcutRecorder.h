// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <controls/RoleWidget.h>
#include <hotkey/HotKeyCombo.h>
#include <loop/MainQueue.h>

#include <QStringList>

namespace quorvane {

class IconButton;
class KeyCapRow;
class KeyCapture;

/// Shows a shortcut as key caps, and records another one: its button starts and ends the recording,
/// a key with a modifier becomes the new shortcut, Escape leaves the old one.
class ShortcutRecorder final : public RoleWidget {
    Q_OBJECT

public:
    static constexpr int recorderHeight = 32;

    /// Whether presses of the shortcut reach the program.
    enum class Activity {
        Active,
        HeldElsewhere, ///< by another program
        NoSuchKey,     ///< this keyboard cannot type it
        Unavailable    ///< this desktop lets no program have one, or not this one
    };

    struct Status {
        Activity activity = Activity::Active;
        QString holder; ///< what people call the program that holds it; empty where nobody tells
    };

    /// A new shortcut is set as soon as it is recorded. `layout` and `queue` must outlive the
    /// recorder.
    ShortcutRecorder(
        Binding<HotKeyCombo> combo,
        const KeyboardLayout& layout,
        MainQueue& queue,
        QWidget* parent = nullptr);

    [[nodiscard]] HotKeyCombo combo() const { return m_combo.get(); }

    [[nodiscard]] bool isRecording() const { return m_isRecording; }

    /// What is held at the moment, lock keys included; none while nothing is recorded.
    [[nodiscard]] ModifierFlags previewMods() const { return m_previewMods; }

    /// The labels of the key caps: of the shortcut, or of what is held while recording, and "…".
    [[nodiscard]] QStringList keys() const;

    /// What the user should know about the shortcut: why it does not work, or what it costs. Empty
    /// where there is nothing to say. Part of the description, except while recording.
    [[nodiscard]] QString notice() const;

    void setStatus(Status status);

    /// As if its button were pressed; does nothing while one is recorded.
    void startRecording();

    /// Shows binding and keyboard layout as they are now.
    void refresh();

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// notice() may have become another.
    void noticeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void toggle();
    void record(HotKeyCombo combo);
    void setRecording(bool isRecording);

    [[nodiscard]] QStringList keyNames() const;
    [[nodiscard]] QString price() const;
    [[nodiscard]] static QString spokenList(const QStringList& names);
    [[nodiscard]] static QString lostByShift(const QString& key);
    void refreshCaps();
    void refreshTexts();

    Binding<HotKeyCombo> m_combo;
    const KeyboardLayout& m_keyboardLayout;
    Status m_status;
    bool m_isRecording = false;
    bool m_hasRecorded = false; ///< the shortcut that is shown was chosen here
    ModifierFlags m_previewMods;

    KeyCapture* m_capture;
    KeyCapRow* m_caps;
    IconButton* m_button;
};

} // namespace quorvane
