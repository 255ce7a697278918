// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SymbolPainter.h>

#include <QWidget>

class QLabel;

namespace quorvane {

/// Says in the place of an empty list why it is empty.
class NothingFound final : public QWidget {
    Q_OBJECT

public:
    /// Hidden, over all of its parent.
    explicit NothingFound(QWidget* parent);

    /// Shows that no zone matches the query.
    void showFor(const QString& query);

    void showMessage(Symbol symbol, const QString& text);

    /// What it says, or said last.
    [[nodiscard]] QString message() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int top() const;
    void place();

    QLabel* m_text;
    Symbol m_symbol = Symbol::Magnifyingglass;
};

} // namespace quorvane
