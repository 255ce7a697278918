// SPDX-License-Identifier: MIT
#pragma once

#include "ScenePicture.h"

#include <QPalette>

namespace quorvane {

/// Scenes in rows, a caption above each, on the colour of a desktop.
class BoardPicture {
public:
    /// `palette` is what the captions and the desktop's colour go with.
    BoardPicture(const QPalette& palette, int columns);

    void add(const QString& caption, const ScenePicture& scene);

    /// The board at the scale that its scenes have been taken at.
    [[nodiscard]] QImage image(double scale) const;

private:
    struct Cell {
        QString caption;
        ScenePicture scene;
        QPoint corner; ///< of the caption
    };

    [[nodiscard]] QSize size() const;
    void paintCaption(QPainter& painter, const Cell& cell) const;

    QPalette m_palette;
    int m_columns;
    std::vector<Cell> m_cells;
};

} // namespace quorvane
