// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>

#include <QWidget>

#include <vector>

namespace quorvane {

/// What the panel opens: time, calendar, list of choices and the picker of zones, in one colour
/// scheme.
class PopoversBoard final : public QWidget {
    Q_OBJECT

public:
    explicit PopoversBoard(ColorScheme scheme, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Shows `content` as a popover would, with its upper left corner there.
    void addPopover(QWidget* content, QPoint corner);

    /// A stand-in for the panel, with the picker over it.
    void addPicker(QPoint corner, const QString& query);

    std::vector<QWidget*> m_popovers;
    std::vector<QRect> m_panels;
};

} // namespace quorvane
