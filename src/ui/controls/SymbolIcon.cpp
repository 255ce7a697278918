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

/// The sizes that status bars ask for; a desktop that is sent pictures is sent these.
constexpr std::array barSizes{16, 22, 24, 32, 48};

/// The pixels of a picture that QIcon wants for a device of that scale: up to Qt 6.7, QIcon itself
/// multiplies the size that it asks its engine for. The library that runs decides, not the headers.
QSize devicePixels(const QSize& size, qreal scale) {
    return QLibraryInfo::version() < QVersionNumber(6, 8) ? size : size * scale;
}

class SymbolIconEngine final : public QIconEngine {
public:
    SymbolIconEngine(Symbol symbol, const SymbolColors& color) : m_symbol(symbol), m_color(color) {}

    [[nodiscard]] QIconEngine* clone() const override {
        return new SymbolIconEngine(m_symbol, m_color);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const double size = std::min(rect.width(), rect.height());
        constexpr double haloed = SymbolStyle::regular + 2 * haloWidth;
        paintSymbol(*painter, m_symbol, {size, haloed}, rect, m_color.halo);
        paintSymbol(*painter, m_symbol, {size, SymbolStyle::regular}, rect, m_color.color);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap
    scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        QPixmap pixmap(devicePixels(size, scale));
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
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
    Symbol m_symbol;
    SymbolColors m_color;
};

} // namespace

SymbolColors SymbolColors::of(const QPalette& palette) {
    const auto color = palette.color(QPalette::WindowText);
    const bool isDark = contrastRatio(color, Qt::white) > contrastRatio(color, Qt::black);
    return {color, isDark ? Qt::white : Qt::black};
}

QIcon symbolIcon(Symbol symbol, const SymbolColors& color) {
    return QIcon(new SymbolIconEngine(symbol, color));
}

} // namespace quorvane
