// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace quorvane {

/// The style of a desktop that asks for no motion: a picture has none.
class StillStyle final : public QProxyStyle {
    Q_OBJECT

public:
    StillStyle();

    int styleHint(
        StyleHint hint,
        const QStyleOption* option,
        const QWidget* widget,
        QStyleHintReturn* returnData) const override;
};

} // namespace quorvane
