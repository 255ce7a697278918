// SPDX-License-Identifier: MIT
#include <controls/ToolTipWrapping.h>

#include <QApplication>
#include <QHelpEvent>
#include <QStringList>
#include <QTextLayout>
#include <QToolTip>
#include <QWidget>

namespace quorvane {

namespace {

constexpr double widestLine = 320;

QStringList brokenLines(const QString& line, const QFont& font) {
    QTextLayout layout(line, font);
    QStringList lines;
    layout.beginLayout();
    for (auto part = layout.createLine(); part.isValid(); part = layout.createLine()) {
        part.setLineWidth(widestLine);
        lines.append(line.sliced(part.textStart(), part.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

} // namespace

QString wrappedToolTip(const QString& text, const QFont& font) {
    QStringList lines;
    for (const auto& line : text.split(u'\n'))
        lines += brokenLines(line, font);
    return lines.join(u'\n');
}

ToolTipWrapping::ToolTipWrapping() {
    qApp->installEventFilter(this);
}

bool ToolTipWrapping::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->toolTip().isEmpty())
        return false;
    const auto place = static_cast<QHelpEvent*>(event)->globalPos();
    QToolTip::showText(place, wrappedToolTip(widget->toolTip(), QToolTip::font()), widget);
    return true;
}

} // namespace quorvane
