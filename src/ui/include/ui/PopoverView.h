// SPDX-License-Identifier: MIT
#pragma once

#include <foundation/CoalescedRefresh.h>
#include <foundation/MainQueue.h>
#include <foundation/ZoneDatabase.h>
#include <model/DateTimeModel.h>
#include <platform/KeyboardLayout.h>
#include <platform/Pasteboard.h>

#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace quorvane {

class CopyButton;
class OutputPreview;
class ZoneField;

/// The interface of the program: what to compose, the live output, and the two ways to deliver it.
class PopoverView final : public QWidget {
    Q_OBJECT

public:
    /// What the view works with; all must outlive it.
    struct Services {
        Pasteboard& pasteboard;
        const KeyboardLayout& keyboardLayout;
        const ZoneDatabase& zones;
        MainQueue& mainQueue;
    };

    /// What the view asks of its owner.
    struct Callbacks {
        std::function<void()> onInsert;
        std::function<void()> onShowPreferences;
        std::function<void()> onClose;
        std::function<void()> onQuit;
    };

    PopoverView(DateTimeModel& model, Services services, Callbacks callbacks);
    ~PopoverView() override;

    /// Shows everything anew on a later turn, for changes that the model does not announce.
    void refreshSoon() { m_refresh.schedule(); }

    /// Puts the output on the pasteboard and says so on the button for a while.
    void performCopy();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QHBoxLayout* makeHeader();
    [[nodiscard]] QHBoxLayout* makeDateRow();
    [[nodiscard]] QHBoxLayout* makeFormatRow();
    [[nodiscard]] QHBoxLayout* makeActionBar();
    /// `main` is the control that the name stands for.
    void addSection(QVBoxLayout* column, const QString& name, QLayout* content, QWidget* main);
    void addShortcuts();
    void connectControls();

    void refresh();
    void refreshPresets();
    void refreshDownstream();
    void setIncludeDate(bool include);
    void setIncludeTime(bool include);
    [[nodiscard]] bool downstreamDisabled() const;

    DateTimeModel& m_model;
    Services m_services;
    Callbacks m_callbacks;
    CoalescedRefresh m_refresh;

    QLabel* m_keys;
    QCheckBox* m_includeDate;
    QCheckBox* m_includeTime;
    ZoneField* m_zoneField;
    QComboBox* m_preset;
    QComboBox* m_layout;
    QLineEdit* m_customFormat;
    OutputPreview* m_preview;
    CopyButton* m_copy;
    QPushButton* m_insert;
};

} // namespace quorvane
