// SPDX-License-Identifier: MIT
#pragma once

#include <controls/IconButton.h>
#include <controls/PopoverOpener.h>

namespace quorvane {

/// A quiet question mark that opens a page of help.
class PatternHelpButton final : public IconButton {
    Q_OBJECT

public:
    PatternHelpButton(PopoverEffects effects, PopoverOpener::MakeContent makePage, QWidget* parent);

    void closePage() { m_page.close(); }

    [[nodiscard]] std::optional<bool> isExpanded() const override { return m_page.isOpen(); }

    [[nodiscard]] QWidget* openedSurface() const override { return m_page.popover(); }

private:
    PopoverOpener m_page;
};

} // namespace quorvane
