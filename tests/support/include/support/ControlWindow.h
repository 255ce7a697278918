// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>

#include <QAccessible>
#include <QImage>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

namespace quorvane {

/// A window in the built-in palette whose controls stand in a column, shown and active.
class ControlWindow : public QWidget {
public:
    explicit ControlWindow(ColorScheme scheme = ColorScheme::Light) {
        setPalette(builtInPalette(scheme));
        auto font = this->font();
        font.setPixelSize(13);
        setFont(font);
        new QVBoxLayout(this);
    }

    /// Adds a control at the end of the column.
    template <typename Control>
    Control& add(Control* control) {
        layout()->addWidget(control);
        return *control;
    }

    [[nodiscard]] bool open() {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }
};

[[nodiscard]] inline QImage picture(QWidget& widget, double scale = 1) {
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image);
    return image;
}

[[nodiscard]] inline QAccessibleInterface& accessible(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
}

} // namespace quorvane
