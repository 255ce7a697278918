// SPDX-License-Identifier: MIT
#pragma once

#include <controls/TextField.h>

#include <vector>

namespace quorvane {

/// A field for a date pattern (UTS #35). Each letter that stands for nothing there is underlined
/// where it stands; tooltip and description name them.
class PatternField final : public TextField {
    Q_OBJECT

public:
    explicit PatternField(PasteReader reader, QWidget* parent = nullptr);

    /// Leaves `points` free at the end, for what lies over the field there.
    void setTrailingRoom(int points);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void noteUnknownLetters();
    void adoptPadding();
    void paintMarks();

    std::vector<qsizetype> m_unknown; ///< positions in the text
    int m_trailingRoom = 0;
};

} // namespace quorvane
