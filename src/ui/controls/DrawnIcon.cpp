// SPDX-License-Identifier: MIT
#include <controls/DrawnIcon.h>

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <utility>

namespace quorvane {

namespace {

class DrawnIconEngine final : public QIconEngine {
public:
    explicit DrawnIconEngine(QString path) : m_path(std::move(path)) {}

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIconEngine(m_path); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        QSvgRenderer(m_path).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

private:
    QString m_path;
};

} // namespace

QIcon drawnIcon(const QString& path) {
    return QIcon(new DrawnIconEngine(path));
}

} // namespace quorvane
