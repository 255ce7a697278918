// SPDX-License-Identifier: MIT
#pragma once

#include "MenuRow.h"

#include <controls/Symbol.h>

#include <QKeySequence>

namespace quorvane {

/// One command of a menu: its symbol, its title, and the keys that give it without the menu.
class CommandRow final : public MenuRow {
    Q_OBJECT

public:
    CommandRow(Symbol symbol, const QString& title, const QKeySequence& keys, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::MenuItem;
    }

protected:
    void paintContent(QPainter& painter, const Theme& theme) override;

private:
    [[nodiscard]] int keysWidth() const;

    Symbol m_symbol;
    QString m_keys; ///< as the desktop writes them; empty for a command without keys
};

} // namespace quorvane
