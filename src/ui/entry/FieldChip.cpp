// SPDX-License-Identifier: MIT
#include <controls/ChipSurface.h>
#include <controls/TextStyle.h>
#include <entry/FieldChip.h>

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace quorvane {

namespace {

constexpr double spacing = 5;
constexpr SymbolStyle iconStyle{12, SymbolStyle::semibold};

} // namespace

FieldChip::FieldChip(Symbol icon, PopoverEffects effects, QWidget* parent)
    : PressableControl(parent),
      m_icon(icon),
      m_popover(*this, std::move(effects), [this] { return makeContent(); }) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &FieldChip::clicked, &m_popover, &PopoverOpener::toggle);
}

QSize FieldChip::sizeHint() const {
    const double content = contentRow(Theme::of(palette())).width();
    return {
        static_cast<int>(std::ceil(content)) + 2 * ChipSurface::horizontalPadding,
        ChipSurface::height};
}

void FieldChip::showText(const QString& newText) {
    if (newText == text())
        return;
    setText(newText);
    updateGeometry();
}

double FieldChip::cornerRadius() const {
    return ChipSurface::cornerRadius;
}

void FieldChip::paintControl(QPainter& painter, const Theme& theme) {
    const auto frame = m_popover.isOpen() ? ChipSurface::Frame::Open : ChipSurface::Frame::Plain;
    ChipSurface::paint(painter, rect(), theme, visualState(), frame);
    constexpr int padding = ChipSurface::horizontalPadding;
    contentRow(theme).paint(painter, rect().adjusted(padding, 0, -padding, 0), layoutDirection());
}

void FieldChip::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    // A button would walk among its siblings.
    if (isPlain && event->key() == Qt::Key_Up)
        step(1);
    else if (isPlain && event->key() == Qt::Key_Down)
        step(-1);
    else
        PressableControl::keyPressEvent(event);
}

void FieldChip::wheelEvent(QWheelEvent* event) {
    // Fine wheels turn by less than a notch at a time. What is left of one way does not count for
    // the other.
    const int angle = event->angleDelta().y();
    if (angle == 0) {
        event->ignore();
        return;
    }
    if ((angle > 0) != (m_turned > 0))
        m_turned = 0;
    m_turned += angle;
    const int notches = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        step(notches);
    event->accept();
}

void FieldChip::hideEvent(QHideEvent* event) {
    PressableControl::hideEvent(event);
    m_popover.close();
}

ContentRow FieldChip::contentRow(const Theme& theme) const {
    ContentRow row(spacing);
    row.addSymbol(m_icon, besideText(font(), iconStyle), theme.secondaryText);
    row.addText(text(), textFont(font(), TextStyle::Callout), theme.text);
    return row;
}

} // namespace quorvane
