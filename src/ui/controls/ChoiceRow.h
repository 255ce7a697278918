// SPDX-License-Identifier: MIT
#pragma once

#include "MenuRow.h"

namespace quorvane {

/// One item of a list to choose from, with a check mark while it is the chosen one, and perhaps a
/// sample of what it comes to.
class ChoiceRow final : public MenuRow {
    Q_OBJECT

public:
    ChoiceRow(const QString& title, bool isChosen, QWidget* parent);

    /// Stands at the row's end, shortened where it has not the room. Assistive technology takes it
    /// for the row's description.
    void setSample(const QString& sample);

    /// What mark and title need; a sample asks for nothing.
    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ListItem;
    }

protected:
    void paintContent(QPainter& painter, const Theme& theme) override;

private:
    static constexpr int slotWidth = 12;
    static constexpr int slotGap = 8;
    static constexpr int titleStart = horizontalPadding + slotWidth + slotGap;

    void paintSample(QPainter& painter, const Theme& theme) const;

    QString m_sample;
};

} // namespace quorvane
