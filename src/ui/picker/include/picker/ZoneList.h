// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

#include <optional>

namespace quorvane {

/// The list of a picker. Its current row is shown wherever the keyboard's focus is, because it is
/// moved from the search field as well. A press on a row chooses it, as do Return and Space.
class ZoneList final : public QListView {
    Q_OBJECT

public:
    explicit ZoneList(QWidget* parent = nullptr);

    /// Moves the current row by what the key stands for (arrows, Page Up and Down); false for any
    /// other key.
    bool moveByKey(int key);

    /// Whether the pointer holds the row down.
    [[nodiscard]] bool isPressed(const QModelIndex& index) const;

    /// Makes the first row that is no head the current one and shows it.
    void goToFirst();

    /// Scrolls to the top; no row is current.
    void goToTop();

    /// Restores the scroll position after the rows have changed and makes that row current: the
    /// last row if it no longer exists, none if given none.
    void goBackTo(int scrolled, std::optional<int> row);

Q_SIGNALS:
    void chosen(const QModelIndex& index);

    /// A key that writes text was pressed in the list.
    void typed(QKeyEvent* event);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Focus that comes by the keyboard makes some row the current one.
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    QPersistentModelIndex m_pressed;
};

} // namespace quorvane
