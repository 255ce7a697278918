// SPDX-License-Identifier: MIT
#pragma once

#include <panel/ZoneChip.h>

namespace quorvane {

/// A favourite time zone that is not selected; pressing it adds it.
class FavoriteSuggestionChip final : public ZoneChip {
    Q_OBJECT

public:
    FavoriteSuggestionChip(
        const TimeZone& timeZone,
        const QString& label,
        std::function<void()> onAdd,
        QWidget* parent = nullptr);

protected:
    [[nodiscard]] ContentRow content(const Theme& theme) const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
};

} // namespace quorvane
