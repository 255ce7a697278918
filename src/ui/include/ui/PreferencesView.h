// SPDX-License-Identifier: MIT
#pragma once

#include <foundation/CoalescedRefresh.h>
#include <foundation/MainQueue.h>
#include <model/DateTimeModel.h>
#include <platform/KeyboardLayout.h>

#include <QWidget>

class QCheckBox;
class QLabel;

namespace quorvane {

/// The settings that the main interface does not show. Changes take effect at once.
class PreferencesView final : public QWidget {
    Q_OBJECT

public:
    PreferencesView(DateTimeModel& model, const KeyboardLayout& layout, MainQueue& queue);

private:
    void refresh();

    DateTimeModel& m_model;
    const KeyboardLayout& m_keyboardLayout;
    CoalescedRefresh m_refresh;
    QLabel* m_keys;
    QCheckBox* m_showInDock;
};

} // namespace quorvane
