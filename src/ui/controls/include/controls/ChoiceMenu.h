// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <optional>
#include <vector>

namespace quorvane {

class MenuRow;

/// A list of titles to choose one from, for a popover: arrows, Home and End move, Space and Return
/// choose, a letter goes to the next title that begins with it.
class ChoiceMenu final : public QWidget {
    Q_OBJECT

public:
    /// The keyboard starts at the selected title, without one at the first.
    ChoiceMenu(const QStringList& titles, std::optional<int> selected, QWidget* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void chosen(int index);

private:
    [[nodiscard]] std::optional<int> indexAfterKey(int key, int index) const;
    [[nodiscard]] std::optional<int> indexAfterText(const QString& text, int index) const;

    std::vector<MenuRow*> m_rows;
};

} // namespace quorvane
