// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace quorvane {

/// The desktop's style, with as much motion as the user wants. Whatever moves, ours or Qt's, asks
/// the style how long that takes, each time it starts to move.
class MotionStyle final : public QProxyStyle {
public:
    enum class Motion { AsTheStyleHasIt, None };

    void setMotion(Motion motion) { m_motion = motion; }

    int styleHint(
        StyleHint hint,
        const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr,
        QStyleHintReturn* returned = nullptr) const override;

private:
    Motion m_motion = Motion::AsTheStyleHasIt;
};

} // namespace quorvane
