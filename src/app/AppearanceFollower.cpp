// SPDX-License-Identifier: MIT
#include "AppearanceFollower.h"

#include <controls/Theme.h>

#include <QApplication>
#include <QProxyStyle>

namespace quorvane {

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

} // namespace

/// The desktop's style, with as much motion as the user wants. Whatever moves, ours or Qt's, asks
/// the style how long that takes, each time it starts to move.
class AppearanceFollower::MotionStyle final : public QProxyStyle {
public:
    void setMotionWanted(bool isWanted) { m_isMotionWanted = isWanted; }

    int styleHint(
        StyleHint hint,
        const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr,
        QStyleHintReturn* returned = nullptr) const override {
        if (!m_isMotionWanted && hint == SH_Widget_Animation_Duration)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
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

AppearanceFollower::AppearanceFollower(Appearance& appearance, PaletteFrom source)
    : m_appearance(appearance),
      m_source(source),
      m_style(new MotionStyle) {
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
    if (m_source == PaletteFrom::BuiltIn)
        QApplication::setPalette(paletteFor(wanted));
}

} // namespace quorvane
