// SPDX-License-Identifier: MIT
#include "BoardPicture.h"

#include <controls/TextStyle.h>
#include <controls/Theme.h>

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int margin = 32;
constexpr int captionHeight = 16;
constexpr int captionGap = 12;
constexpr int captionPixels = 11;

QColor deskColor(const QPalette& palette) {
    return colorScheme(palette) == ColorScheme::Dark ? QColor(0x0e0f11) : QColor(0xc6ccd8);
}

} // namespace

BoardPicture::BoardPicture(const QPalette& palette, int columns)
    : m_palette(palette),
      m_columns(columns) {
}

void BoardPicture::add(const QString& caption, const ScenePicture& scene) {
    QPoint corner(margin, margin);
    if (!m_cells.empty()) {
        const bool opensRow = std::ssize(m_cells) % m_columns == 0;
        const auto& last = m_cells.back();
        corner = opensRow ? QPoint(margin, size().height())
                          : last.corner + QPoint(last.scene.size().width() + margin, 0);
    }
    m_cells.push_back({caption, scene, corner});
}

QSize BoardPicture::size() const {
    QSize whole;
    for (const auto& cell : m_cells) {
        const auto scene = cell.scene.size();
        whole = whole.expandedTo(
            {cell.corner.x() + scene.width() + margin,
             cell.corner.y() + captionHeight + captionGap + scene.height() + margin});
    }
    return whole;
}

QImage BoardPicture::image(double scale) const {
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(deskColor(m_palette));
    QPainter painter(&image);
    for (const auto& cell : m_cells) {
        paintCaption(painter, cell);
        cell.scene.paint(painter, cell.corner + QPoint(0, captionHeight + captionGap));
    }
    return image;
}

void BoardPicture::paintCaption(QPainter& painter, const Cell& cell) const {
    painter.setFont(fixedSizeFont(QApplication::font(), captionPixels, QFont::Medium));
    painter.setPen(Theme::of(m_palette).secondaryText);
    const QRect place(cell.corner, QSize(cell.scene.size().width(), captionHeight));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, cell.caption);
}

} // namespace quorvane
