// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/SymbolIcon.h>
#include <controls/SymbolPainter.h>

#include <QIconEngine>
#include <QLibraryInfo>
#include <QPainter>
#include <QVersionNumber>

#include <algorithm>

namespace quorvane {

namespace {

/// On either side of the stroke, on the drawings' own grid of 16 by 16. A share of the size, not of
/// the device's pixels: some desktops take the largest picture and scale it down. With less, the
/// smallest icon cannot be read by its halo alone.
constexpr double haloWidth = 0.75;
constexpr double haloOpacity = 0.5;

/// How large the drawing is in a bar's icon: as large as the neighbours' is, and a multiple of a
/// quarter of its grid, so that its edges stay on the pixels.
int drawingSize(int iconSize) {
    constexpr int grid = 16;
    constexpr int step = grid / 4;
    constexpr double share = 0.75;
    if (iconSize <= grid)
        return iconSize;
    return std::max(grid, static_cast<int>(iconSize * share) / step * step);
}

/// The sizes that status bars ask for; a desktop that is sent pictures is sent these.
constexpr std::array barSizes{16, 22, 24, 32, 48};

/// The pixels of a picture that QIcon wants for a device of that scale: up to Qt 6.7, QIcon itself
/// multiplies the size that it asks its engine for. The library that runs decides, not the headers.
QSize devicePixels(const QSize& size, qreal scale) {
    return QLibraryInfo::version() < QVersionNumber(6, 8) ? size : size * scale;
}

class SymbolIconEngine final : public QIconEngine {
public:
    SymbolIconEngine(Symbol symbol, const SymbolColors& color, const QString& themeName)
        : m_symbol(symbol),
          m_color(color),
          m_themeName(themeName) {}

    [[nodiscard]] QIconEngine* clone() const override {
        return new SymbolIconEngine(m_symbol, m_color, m_themeName);
    }

    [[nodiscard]] QString iconName() override { return m_themeName; }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        paintScaled(*painter, rect, 1);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode, QIcon::State, qreal scale) override {
        QPixmap pixmap(devicePixels(size, scale));
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintScaled(painter, pixmap.rect(), scale);
        return pixmap;
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int size : barSizes)
            sizes.append({size, size});
        return sizes;
    }

    bool isNull() override { return false; }

private:
    /// `scale` is how many of the rectangle's units are a point.
    void paintScaled(QPainter& painter, const QRect& rect, qreal scale) const {
        const int points = qRound(std::min(rect.width(), rect.height()) / scale);
        const double size = drawingSize(points) * scale;
        constexpr double haloed = SymbolStyle::regular + 2 * haloWidth;
        if (m_color.halo.alpha() > 0)
            paintSymbol(painter, m_symbol, {size, haloed}, rect, m_color.halo);
        paintSymbol(painter, m_symbol, {size, SymbolStyle::regular}, rect, m_color.color);
    }

    Symbol m_symbol;
    SymbolColors m_color;
    QString m_themeName;
};

} // namespace

SymbolColors SymbolColors::of(const QPalette& palette) {
    const auto color = palette.color(QPalette::WindowText);
    const bool isDark = contrastRatio(color, Qt::white) > contrastRatio(color, Qt::black);
    return {color, withOpacity(isDark ? Qt::white : Qt::black, haloOpacity)};
}

QIcon symbolIcon(Symbol symbol, const SymbolColors& color, const QString& themeName) {
    return QIcon(new SymbolIconEngine(symbol, color, themeName));
}

} // namespace quorvane
