// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

#include <memory>
#include <vector>

namespace quorvane {

/// Several sources as one: scheme, accent and font each are what the first source says that says
/// anything about it. More contrast or less motion is wanted if any of them says so.
class LayeredAppearance final : public Appearance {
public:
    using Sources = std::vector<std::unique_ptr<Appearance>>;

    /// The one that counts most comes first.
    explicit LayeredAppearance(Sources sources);
    ~LayeredAppearance() override;

    LayeredAppearance(const LayeredAppearance&) = delete;
    LayeredAppearance& operator=(const LayeredAppearance&) = delete;

    [[nodiscard]] DesktopAppearance current() const override;

    void read() override;

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

private:
    void tellIfChanged();

    Sources m_sources;
    DesktopAppearance m_told;
    std::function<void()> m_changed;
};

} // namespace quorvane
