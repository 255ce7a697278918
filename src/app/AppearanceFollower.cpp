// SPDX-License-Identifier: MIT
#include "AppearanceFollower.h"

#include <controls/Theme.h>
#include <controls/ToolTipStyle.h>

#include <QApplication>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

ColorScheme schemeFor(const DesktopAppearance& appearance) {
    return appearance.scheme == DesktopAppearance::Scheme::Dark ? ColorScheme::Dark
                                                                : ColorScheme::Light;
}

QColor color(const DesktopAppearance::Accent& accent) {
    return QColor::fromRgbF(
        static_cast<float>(accent.red),
        static_cast<float>(accent.green),
        static_cast<float>(accent.blue));
}

QPalette paletteFor(const DesktopAppearance& appearance) {
    return builtInPalette(
        schemeFor(appearance),
        appearance.wantsMoreContrast ? ContrastLevel::High : ContrastLevel::Normal,
        appearance.accent ? std::optional(color(*appearance.accent)) : std::nullopt);
}

QFont fontFor(const DesktopAppearance& appearance, const QFont& otherwise) {
    if (!appearance.font)
        return otherwise;
    QFont font(appearance.font->family);
    font.setPointSizeF(appearance.font->points);
    return font;
}

} // namespace

/// The desktop's style, with our tooltips and as much motion as the user wants. Whatever moves,
/// ours or Qt's, asks the style how long that takes, each time it starts to move.
class AppearanceFollower::MotionStyle final : public ToolTipStyle {
public:
    using ToolTipStyle::ToolTipStyle;

    void setMotionWanted(bool isWanted) { m_isMotionWanted = isWanted; }

    int styleHint(
        StyleHint hint,
        const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr,
        QStyleHintReturn* returned = nullptr) const override {
        if (!m_isMotionWanted && hint == SH_Widget_Animation_Duration)
            return 0;
        return ToolTipStyle::styleHint(hint, option, widget, returned);
    }

private:
    bool m_isMotionWanted = true;
};

AppearanceFollower::PaletteFrom AppearanceFollower::paletteSource() {
    // A palette that is the style's own comes from no desktop.
    return QApplication::palette() == QApplication::style()->standardPalette()
               ? PaletteFrom::BuiltIn
               : PaletteFrom::Desktop;
}

AppearanceFollower::FontFrom AppearanceFollower::fontSource() {
    // What Qt takes on X11 where no desktop names a font.
    constexpr int builtInPoints = 9;
    const auto font = QApplication::font();
    const bool isBuiltIn = font.family() == u"Sans Serif"_s && font.pointSize() == builtInPoints;
    return isBuiltIn ? FontFrom::BuiltIn : FontFrom::Desktop;
}

AppearanceFollower::AppearanceFollower(
    Appearance& appearance, PaletteFrom palette, FontFrom font, PopoverEffects effects)
    : m_appearance(appearance),
      m_paletteFrom(palette),
      m_fontFrom(font),
      m_ownFont(QApplication::font()),
      m_style(new MotionStyle(std::move(effects))) {
    QApplication::setStyle(m_style);
    apply();
    m_appearance.onChanged([this] { apply(); });
}

AppearanceFollower::~AppearanceFollower() {
    m_appearance.onChanged({});
}

void AppearanceFollower::apply() {
    const auto wanted = m_appearance.current();
    if (m_style)
        m_style->setMotionWanted(!wanted.wantsLessMotion);
    if (m_paletteFrom == PaletteFrom::BuiltIn)
        QApplication::setPalette(paletteFor(wanted));
    const auto font = fontFor(wanted, m_ownFont);
    if (m_fontFrom == FontFrom::BuiltIn && QApplication::font() != font)
        QApplication::setFont(font);
    if (m_applied)
        m_applied();
}

} // namespace quorvane
