// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

namespace quorvane {

/// A desktop whose appearance the test decides.
class FakeAppearance final : public Appearance {
public:
    [[nodiscard]] DesktopAppearance current() const override { return m_current; }

    void read() override { ++m_reads; }

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    void change(const DesktopAppearance& appearance) {
        m_current = appearance;
        if (m_changed)
            m_changed();
    }

    [[nodiscard]] int reads() const { return m_reads; }

private:
    DesktopAppearance m_current;
    std::function<void()> m_changed;
    int m_reads = 0;
};

} // namespace quorvane
